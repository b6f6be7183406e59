#include "editing/statistics_line.h"

namespace tabrova {

namespace {

std::string counted(const std::string& word, int number, const std::string& of, int total) {
    return word + " " + std::to_string(number) + " " + of + " " + std::to_string(total);
}

} // namespace

std::string statisticsLine(const Document& document, const LanguageWords& words) {
    return counted(words.track, document.CurrentTrack, words.of, document.TrackCount) + ", " +
           counted(words.staff, document.CurrentStaff, words.of, document.StaffCount);
}

std::string debugLine(const Document& document) {
    const int noteNumber = document.CurrentStaff * ColumnsPerStaff - ColumnsPerStaff + document.ColumnInStaff;
    return "horizontal spacing: " + std::to_string(document.ColumnWidth) +
           ". note number: " + std::to_string(noteNumber) +
           ". String number: " + std::to_string(document.CurrentString) +
           ". Total Staves: " + std::to_string(document.StaffCount) +
           ". Staffnum: " + std::to_string(document.CurrentStaff) + " YSIZE " +
           std::to_string(document.RowCapacity) + " XSIZE " + std::to_string(document.ColumnCapacity) +
           " XPOS " + std::to_string(document.CurrentColumn) + " Top Staff " +
           std::to_string(document.TopStaff) + " visible Staffs " + std::to_string(document.VisibleStaves);
}

} // namespace tabrova

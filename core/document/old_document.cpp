#include "core/document/old_document.h"

#include "core/document/document_operations.h"
#include "core/document/separator_gaps.h"
#include "core/files/entry_file.h"
#include "core/files/regular_file.h"

#include <algorithm>
#include <cmath>

namespace tabrova {

namespace {

constexpr std::string_view Separator = " #";
constexpr std::size_t CellWidth = 2;
constexpr std::size_t HeaderLength = 3 + 3 + 5 + 2 * StringsPerTrack;
constexpr std::size_t StaffLength = StringsPerTrack * ColumnsPerStaff * (CellWidth + 1) + 1;
constexpr std::size_t LongestName = 2 + 99;
// A document of the most staves, and the quotes that may stand round it.
constexpr std::size_t LongestItem = HeaderLength + MostStaves * StaffLength + 2 * LongestName + 2;

// Cuts fields from the front of the text. Past its end they are what is left.
class Fields {
  public:
    explicit Fields(std::string_view text) : rest_(text) {}

    std::string_view cut(std::size_t width) {
        const std::string_view field = rest_.substr(0, width);
        rest_.remove_prefix(field.size());
        return field;
    }

    std::optional<std::int16_t> cutInteger(std::size_t width) { return toInteger16(cut(width)); }

    bool cutInto(std::int16_t& field, std::size_t width) {
        const auto value = cutInteger(width);
        if (value) field = *value;
        return value.has_value();
    }

    // A text with its length, of two characters, before it.
    bool cutInto(std::string& text) {
        const auto length = cutInteger(2);
        if (!length || *length < 0) return false;
        text = cut(static_cast<std::size_t>(*length));
        return true;
    }

  private:
    std::string_view rest_;
};

// The whole part.
std::optional<std::int16_t> wholePart(std::string_view field) {
    const auto number = toNumber(field);
    return number ? toInteger16(std::trunc(*number)) : std::nullopt;
}

class Importer {
  public:
    Importer(Document& document, std::string_view item) : document_(document), fields_(item) {}

    bool run() {
        if (!cutHeader()) return false;
        if (document_.StaffCount < 1 ||
            !ResizeGrids(document_, document_.StaffCount * ColumnsPerStaff, StringsPerTrack))
            return false;
        if (!cutStaves()) return false;
        if (!fields_.cutInto(document_.Author) || !fields_.cutInto(document_.Title)) return false;
        closeGaps();
        return true;
    }

  private:
    bool cutHeader() {
        document_.TrackInstruments.front() = fields_.cut(3);
        if (!fields_.cutInto(document_.Tempo, 3)) return false;
        const auto staves = wholePart(fields_.cut(5));
        if (!staves) return false;
        document_.StaffCount = *staves;
        for (int row = StringsPerTrack - 1; row >= 0; --row) {
            const auto tuning = fields_.cutInteger(2);
            if (!tuning) return false;
            document_.TuningTable[static_cast<std::size_t>(row)] = static_cast<std::int16_t>(*tuning + 1);
        }
        return true;
    }

    // The cursor's column counts the cells, and stands behind the staff in the end.
    bool cutStaves() {
        for (int staff = 0; staff < document_.StaffCount; ++staff) {
            for (int row = 0; row < StringsPerTrack; ++row)
                for (document_.ColumnInStaff = 0; document_.ColumnInStaff < ColumnsPerStaff;
                     ++document_.ColumnInStaff)
                    if (!cutCell(staff * ColumnsPerStaff + document_.ColumnInStaff, row)) return false;
            fields_.cut(1);
        }
        return true;
    }

    bool cutCell(int column, int row) {
        const std::string_view cell = fields_.cut(CellWidth);
        fields_.cut(1);
        if (cell == ">>" || cell == "  ") return true;
        if (cell == Separator) return setSeparator(column + 1);
        const auto fret = wholePart(cell);
        if (fret) document_.setNote(column, row, std::to_string(*fret));
        return fret.has_value();
    }

    // Behind the last column there is no room for it.
    bool setSeparator(int column) {
        if (column >= document_.ColumnCapacity) return false;
        document_.setBarMark(column, ".");
        widths_.push_back(static_cast<std::uint8_t>(ColumnsPerStaff - document_.ColumnInStaff));
        return true;
    }

    // Where the walk moves anything it takes the cursor's column along to 0.
    void closeGaps() {
        if (std::ranges::all_of(widths_, [](int width) { return width == 1; })) return;
        std::vector<OldColumn> columns(static_cast<std::size_t>(document_.ColumnCapacity));
        for (int column = 0; column < document_.ColumnCapacity; ++column) {
            OldColumn& old = columns[static_cast<std::size_t>(column)];
            for (int row = 0; row < StringsPerTrack; ++row)
                old.notes[static_cast<std::size_t>(row)] = document_.NoteGrid.at(column, row);
            old.separator = !document_.barMark(column).empty();
        }
        closeSeparatorGaps(columns, widths_);
        for (int column = 0; column < document_.ColumnCapacity; ++column) {
            const OldColumn& closed = columns[static_cast<std::size_t>(column)];
            for (int row = 0; row < StringsPerTrack; ++row)
                document_.NoteGrid.set(column, row, closed.notes[static_cast<std::size_t>(row)]);
            document_.setBarMark(column, closed.separator ? "." : "");
        }
        document_.ColumnInStaff = 0;
    }

    Document& document_;
    Fields fields_;
    std::vector<std::uint8_t>
        widths_; // columns from each separator to the end of its staff, as they are read
};

} // namespace

std::optional<std::string> readOldDocumentItem(const std::filesystem::path& path) {
    RegularFile file(path);
    if (!file) return std::nullopt;
    std::string bytes(LongestItem, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return std::string(itemAt(bytes));
}

bool readOldDocument(Document& document, std::string_view item) { return Importer(document, item).run(); }

} // namespace tabrova

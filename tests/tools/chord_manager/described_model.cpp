// What the plain model shows, as text.
#include "core/text/code_page.h"
#include "tests/tools/chord_manager/checked_chord_window.h"

#include <iomanip>
#include <sstream>

namespace tabrova::testing {

namespace {

char markSign(const PlainMark& mark) {
    if (mark.visible) return mark.red ? 'R' : 'O';
    return mark.red ? 'r' : '.';
}

std::string marksText(const PlainChordManager& manager) {
    std::string text;
    for (const auto& string : manager.marks) {
        for (const PlainMark& mark : string)
            text += markSign(mark);
        text += ' ';
    }
    return text;
}

std::string keyBoxesText(const PlainChordManager& manager) {
    std::string text;
    for (std::size_t note = 0; note < 12; ++note)
        text +=
            manager.chkKeyRed[note] ? (manager.chkKey[note] ? 'R' : 'r') : (manager.chkKey[note] ? 'x' : '-');
    return text;
}

std::string staffText(const PlainChordManager& manager) {
    std::string text;
    for (const std::string& mark : manager.staff)
        text += mark + " ";
    return text;
}

std::string previewText(const PlainChordManager& manager) {
    std::string text;
    for (const std::size_t shown : manager.preview) {
        std::string string(8, '.');
        string[shown] = 'O';
        text += string + " ";
    }
    return text;
}

std::string listText(const PlainList& list) {
    std::string text;
    for (const std::string& row : list.rows)
        text += row + "|";
    return text + " chosen " + std::to_string(list.row());
}

std::string timerText(const PlainTimer& timer) {
    return (timer.enabled ? "on " : "off ") + std::to_string(timer.interval);
}

} // namespace

std::string described(const PlainChordManager& manager) {
    std::ostringstream text;
    text << "title " << manager.title << "\nkey " << manager.keyRow << "\nstyle " << manager.style
         << "\ntypes " << listText(manager.types) << "\nchords " << listText(manager.chords) << "\nmarks "
         << marksText(manager) << "\nnotes " << keyBoxesText(manager) << "\nstaff " << staffText(manager)
         << "\nconstruction ";
    for (const int value : manager.cCheck)
        text << value;
    text << "\nfrets ";
    for (const std::string& fret : manager.frets)
        text << '[' << utf8FromCodePage(fret) << ']';
    text << "\nentries ";
    for (const std::string& entry : manager.entries)
        text << '[' << entry << ']';
    text << "\npreview " << previewText(manager) << "\nname " << manager.newChordName << "\nfind "
         << manager.find << "\nplayer " << timerText(manager.player) << "\nstopper "
         << timerText(manager.stopper) << "\nhighlight " << manager.highlight << "\nadder "
         << manager.additionMode << "\nchecks " << manager.playNow << manager.noteByNote << manager.transpose
         << "\n";
    return text.str();
}

std::string described(const PlainDesk& desk) {
    std::ostringstream text;
    text << "cursor " << desk.staffs << ' ' << desk.staff << ' ' << desk.columnInStaff << ' ' << desk.track
         << ' ' << desk.string << "\n";
    for (const auto& [cell, note] : desk.notes)
        text << cell.first << ',' << cell.second << '=' << note << "\n";
    return text.str();
}

std::string described(const PlainFolder& folder) {
    std::string text;
    for (const auto& [name, bytes] : folder)
        text += name + "=" + bytes + "\n";
    return text;
}

std::string midiText(const std::vector<std::array<int, 3>>& messages) {
    std::ostringstream text;
    for (const auto& message : messages) {
        for (const int byte : message)
            text << std::hex << std::setw(2) << std::setfill('0') << byte << ' ';
        text << "\n";
    }
    return text.str();
}

std::string boxText(const std::vector<PlainBox>& boxes) {
    std::string text;
    for (const PlainBox& box : boxes)
        text += box.title + ": " + box.text + " (" + box.icon + "; " + box.buttons + ")\n";
    return text;
}

} // namespace tabrova::testing

// Any bytes are read as a small file of one item, and as what a chord or a chord type makes of it.
#include "core/files/entry_file.h"
#include "tools/chord_manager/chord_calculator.h"

#include <cstdlib>

namespace {

using namespace tabrova;

void check(bool holds) {
    if (!holds) std::abort();
}

void readAsChord(std::string_view item) {
    ChordDisplay display;
    showUserChord(display, item);
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        check(display.frets[string].size() <= 1);
        const auto note = chordNote(string, display.frets[string]);
        check(!note || (*note >= 40 && *note <= 64 + 9));
    }
}

// The types of all keys in all styles.
void readAsType(std::string_view item) {
    const ChordValues values = chordValues(item);
    for (std::size_t root = 0; root < ChordNotes; ++root) {
        ChordDisplay display;
        showChordNotes(display, root, values);
        check(display.chkKey[root].checked && display.chkKey[root].root);
        for (const auto style :
             {CalculatorStyle::OpenStrings, CalculatorStyle::Barre, CalculatorStyle::AllNotes}) {
            pickChordFrets(display, style);
            for (std::size_t string = 0; string < ChordStrings; ++string)
                check(chordNote(string, display.frets[string]).has_value());
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string_view item = firstItem(text);
    check(item.find_first_of("\r\n") == std::string_view::npos);
    check(text.find('"') != std::string_view::npos || item.find(',') == std::string_view::npos);
    readAsChord(item);
    readAsType(item);
    return 0;
}

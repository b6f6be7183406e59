// A plain, slow model of the tuning manager's window: what it shows, keeps, sends and asks.
#pragma once

#include "tests/tools/chord_manager/plain_list.h"

namespace tabrova::testing {

struct PlainPreset {
    const char* caption;
    std::array<int, 6> items;
};

inline const std::vector<PlainPreset> PlainPresets = {
    {"Standard Tuning (Concert)", {12, 12, 12, 12, 12, 12}},
    {"Dropped D (DADGBE)", {10, 12, 12, 12, 12, 12}},
    {"Open A (EAEAC#E)", {12, 12, 14, 14, 14, 12}},
    {"Open C (CGCGCE)", {8, 10, 10, 12, 13, 12}},
    {"Open C Minor (CGCGCEb)", {8, 10, 10, 12, 13, 11}},
    {"Open D (DADF#AD)", {10, 12, 12, 11, 10, 10}},
    {"Open D Minor (DADFAD)", {10, 12, 12, 10, 10, 10}},
    {"Open Dsus4 (DADGAD)", {10, 12, 12, 12, 10, 10}},
    {"Open E (EBEG#BE)", {12, 14, 14, 13, 12, 12}},
    {"Open E Minor (EBEGBE)", {12, 14, 14, 12, 12, 12}},
    {"Open Esus11 (EAEGBE)", {12, 12, 14, 12, 12, 12}},
    {"Open F (CFCFAC)", {8, 8, 10, 10, 10, 8}},
    {"Open F (FACFCF)", {13, 12, 10, 10, 13, 13}},
    {"Open G (DGDGBD)", {10, 10, 12, 12, 12, 10}},
    {"Open G (GBDGBD)", {15, 14, 12, 12, 12, 10}},
    {"Alternate I (EGDEAE)", {12, 10, 12, 9, 10, 12}},
    {"Alternate II (CGDAEG)", {8, 10, 12, 14, 5, 15}},
    {"Alternate III (CGDGBE)", {8, 10, 12, 12, 12, 12}},
    {"Nashville (EADGBE)", {24, 24, 24, 24, 12, 12}},
    {"Down a step (EbAbDbGbBbEb)", {11, 11, 11, 11, 11, 11}},
    {"6 String Bass (BEADGC)", {7, 7, 7, 7, 8, 8}},
};

struct PlainTuningManager {
    PlainTuningManager(PlainDesk& onDesk, PlainFolder& inFolder) : desk(onDesk), files(inFolder) {
        tunings.readAgain(files);
    }

    static int standard(std::size_t string) {
        static const int notes[] = {40, 45, 50, 55, 59, 64};
        return notes[string];
    }
    static std::string itemText(std::size_t string, int item) {
        static const char* const names[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
        const int note = standard(string) + item - 12;
        return (item < 12 ? "-" : item > 12 ? "+" : "") + std::string(names[note % 12]);
    }
    void change(std::size_t string, int item) {
        items[string] = item;
        combo = "(custom tuning)";
        comboRow = -1;
        soundButton(string);
        soundButton(string);
    }
    void soundButton(std::size_t string) {
        if (!tuner) {
            tuneAll = allPressed = false;
            pressed.fill(false);
            pressed[string] = true;
            TuneNote = standard(string) + items[string] - 12;
            tuner = true;
        } else {
            tuner = pressed[string] = false;
            desk.AllNotesOff();
        }
    }
    void tickTuner() {
        if (!tuner) return;
        desk.NoteOn(14, TuneNote);
        tuneAll = false;
    }
    void pressAll() {
        allPressed = !allPressed;
        tuneAll = allPressed;
        stringsEnabled = !allPressed;
        if (allPressed) {
            TuneAllStep = 0;
            pressed.fill(false);
        } else {
            desk.AllNotesOff();
        }
    }
    void tickTuneAll() {
        if (!tuneAll) return;
        static const int base[] = {28, 33, 38, 43, 47, 52};
        tuner = false;
        if (TuneAllStep == 10) TuneAllStep = 0;
        if (TuneAllStep >= 1 && TuneAllStep <= 6) {
            const auto string = static_cast<std::size_t>(TuneAllStep - 1);
            desk.NoteOn(14, items[string] + base[string]);
        }
        ++TuneAllStep;
    }
    void choosePreset(int row) {
        const PlainPreset& preset = PlainPresets[static_cast<std::size_t>(row)];
        for (std::size_t string = 0; string < 6; ++string)
            change(string, preset.items[string]);
        combo = preset.caption;
        comboRow = row;
    }
    void load() {
        const auto file = files.find(tunings.text());
        if (file == files.end() || file->second.empty()) {
            desk.tell("The tuning '" + tunings.text() + "' cannot be loaded.", "any");
            return;
        }
        const std::string letters = plainFirstItem(file->second);
        for (std::size_t string = 0; string < 6 && string < letters.size(); ++string)
            if (letters[string] >= 'A' && letters[string] <= 'Y') change(string, letters[string] - 'A');
    }
    void SaveTuning() {
        std::string line;
        for (const int item : items)
            line += static_cast<char>('A' + item);
        if (!desk.write(files, name, line)) return;
        tunings.readAgain(files);
        desk.tell("The tuning '" + name + "' has been saved.", "information");
    }
    void deleteTuning() {
        if (!tunings.chosen) return;
        if (!desk.ask("Do you want to delete the tuning '" + tunings.text() + "' ?", "exclamation")) return;
        files.erase(tunings.text());
        tunings.readAgain(files);
    }
    static int position(std::size_t string, int item) {
        if (string == 1 && item == 1) return 13;
        if (string == 1 && item == 2) return 2;
        return item + 1;
    }
    // The low E comes last in the track's block.
    void AssignTuning(std::vector<int>& table, int track) const {
        for (std::size_t string = 0; string < 6; ++string)
            table[static_cast<std::size_t>(track * 6 - 1) - string] = position(string, items[string]);
    }
    void close() { desk.AllNotesOff(); }

    PlainDesk& desk;
    PlainFolder& files;
    PlainList tunings;
    std::array<int, 6> items = {12, 12, 12, 12, 12, 12};
    std::string combo = "Standard Tuning (Concert)", name = "(New Tuning)";
    int comboRow = 0;
    std::array<bool, 6> pressed{};
    bool allPressed = false, stringsEnabled = true, tuner = false, tuneAll = false;
    int TuneNote = 0, TuneAllStep = 0;
};

} // namespace tabrova::testing

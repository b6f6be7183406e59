// A plain, slow model of the scale manager's window: what it shows, keeps, sends and asks.
#pragma once

#include "tests/tools/chord_manager/plain_list.h"

namespace tabrova::testing {

struct PlainScaleRow {
    const char* name;
    std::array<const char*, 6> fields;
};

inline const std::vector<PlainScaleRow> PlainScales = {
    {"Major", {"024", "024", "124", "124", "245", "9"}},
    {"Natural Minor", {"023", "023", "024", "02", "013", "0"}},
    {"Harmonic Minor", {"023", "023", "024", "02", "0145", "9"}},
    {"Melodic Minor", {"023", "024", "124", "02", "0245", "9"}},
    {"Arabian", {"024", "013", "1246", "235", "45", "9"}},
    {"Balinese", {"013", "013", "235", "235", "9", "9"}},
    {"Byzantine", {"014", "023", "1236", "245", "45", "9"}},
    {"Diminished Scale HW", {"0134", "124", "023", "0134", "235", "9"}},
    {"Diminished Scale WH", {"023", "0134", "023", "9", "9", "9"}},
    {"East Indian Purvi", {"014", "123", "123", "13", "45", "9"}},
    {"Enigmatic", {"014", "13", "0123", "13", "1345", "9"}},
    {"Harmonic Major", {"024", "023", "124", "124", "14", "0"}},
    {"Hijaz", {"014", "023", "023", "12", "013", "0"}},
    {"Hungarian Gypsy", {"024", "1234", "24", "13", "012", "0"}},
    {"Hungarian Major", {"034", "124", "02", "9", "9", "9"}},
    {"Hungarian Minor", {"023", "123", "12", "9", "9", "9"}},
    {"Neopolitan Major", {"013", "024", "12", "9", "9", "9"}},
    {"Oriental", {"014", "014", "02", "9", "9", "9"}},
    {"Persian", {"014", "013", "12", "9", "9", "9"}},
    {"Whole Tone Scale", {"024", "13", "0", "9", "9", "9"}},
    {"Major Pentatonic", {"024", "24", "2", "9", "9", "9"}},
    {"Minor Pentatonic", {"023", "24", "2", "9", "9", "9"}},
    {"Suspended Pentatonic", {"02", "02", "02", "9", "9", "9"}},
    {"Japanese In Sen Scale", {"01", "02", "1", "9", "9", "9"}},
    {"2nd Mode of In Sen", {"04", "14", "02", "9", "9", "9"}},
    {"Dorian", {"023", "024", "12", "9", "9", "9"}},
    {"Phrygian", {"013", "023", "12", "9", "9", "9"}},
    {"Lydian", {"024", "124", "12", "9", "9", "9"}},
    {"Mixolydian", {"024", "024", "02", "9", "9", "9"}},
    {"Locrian", {"013", "013", "02", "9", "9", "9"}},
    {"Phrygian #6", {"013", "024", "02", "9", "9", "9"}},
    {"Lydian Augmented", {"024", "134", "12", "9", "9", "9"}},
    {"Lydian Dominant", {"024", "124", "02", "9", "9", "9"}},
    {"Fifth Mode", {"024", "023", "02", "9", "9", "9"}},
    {"Locrian #2", {"023", "013", "02", "9", "9", "9"}},
    {"Basic Pentatonic", {"03", "02", "02", "02", "03", "03"}},
};

struct PlainScaleString {
    std::array<bool, 19> marks{};
    std::array<std::string, 5> labels;
    std::array<bool, 5> red{};
    std::array<std::string, 5> entries = {"-", "-", "-", "-", "-"};
};

struct PlainScaleManager {
    PlainScaleManager(PlainDesk& onDesk, PlainFolder& inFolder) : desk(onDesk), files(inFolder) {
        for (const PlainScaleRow& row : PlainScales)
            WriteScaleFile(row.name, {row.fields.begin(), row.fields.end()});
        desk.ProgramChange(14, 24);
    }

    static std::string keyName(int row) {
        static const char* const names[] = {"A", "A#", "B", "C", "C#", "D", "D#", "E", "F", "F#", "G", "G#"};
        return names[row];
    }
    int shift() const { return (key + 5) % 12; }
    int markX(int fret) const {
        static const int twips[] = {-60,  300,  660,  990,  1320, 1650, 1980, 2340, 2670, 3030,
                                    3360, 3720, 4080, 4410, 4740, 5070, 5400, 5760, 6120};
        return (leftHanded && fret < 18 ? twips[17 - fret] : twips[fret]) / 15;
    }

    bool WriteScaleFile(const std::string& scale, const std::vector<std::string>& fields) {
        std::string line;
        for (const std::string& field : fields)
            line += (field.size() < 5 ? std::string(5 - field.size(), '9') : "") + field;
        if (!desk.write(files, scale, line)) return false;
        types.readAgain(files);
        return true;
    }
    void ShowScale() {
        if (key < 0) key = 0;
        const auto file = files.find(types.text());
        if (file != files.end() && !file->second.empty()) txt_scale = plainFirstItem(file->second);
        for (std::size_t string = 0; string < 6; ++string)
            for (std::size_t slot = 0; slot < 5; ++slot)
                strings[string].labels[slot] = "";
        for (PlainScaleString& string : strings)
            string.marks.fill(false);
        for (std::size_t at = 0; at < 30 && at < txt_scale.size(); ++at) {
            if (txt_scale[at] < '0' || txt_scale[at] > '5') continue;
            const int fret = shift() + txt_scale[at] - '0';
            strings[at / 5].marks[static_cast<std::size_t>(fret)] = true;
            strings[at / 5].labels[at % 5] = std::to_string(fret);
        }
        title = keyName(key) + " " + types.text();
    }
    void clickLabel(std::size_t string, std::size_t slot) {
        static const int open[] = {40, 45, 50, 55, 59, 64};
        const std::string& fret = strings[string].labels[slot];
        if (!fret.empty()) desk.NoteOn(14, open[string] + std::stoi(fret));
        stopper = true;
    }
    void blacken() {
        for (PlainScaleString& string : strings)
            string.red.fill(false);
    }
    void tickStopper() {
        if (!stopper) return;
        stopper = false;
        desk.AllNotesOff();
    }
    static bool entryServes(const std::string& entry) {
        return entry == "-" || (entry.size() == 1 && entry[0] >= '0' && entry[0] <= '5');
    }
    void SaveNewScale() {
        std::vector<std::string> fields;
        bool good = true;
        for (const PlainScaleString& string : strings) {
            std::string field;
            for (const std::string& entry : string.entries) {
                good = good && entryServes(entry);
                field += entry == "-" ? "9" : entry;
            }
            fields.push_back(field);
        }
        if (!good || !WriteScaleFile(name, fields)) {
            desk.boxes.push_back(
                {"Error", "Scale was not saved, Please check your input.", "critical", "ok"});
            return;
        }
        desk.boxes.push_back({"Scale Added",
                              "The new scale '" + name + "' has successfully been added to your list.",
                              "information", "ok"});
        for (PlainScaleString& string : strings)
            string.entries.fill("-");
        name = "(new scale)";
    }
    void deleteScale() {
        files.erase(types.text());
        types.readAgain(files);
    }

    PlainDesk& desk;
    PlainFolder& files;
    PlainList types;
    int key = -1; // row
    bool leftHanded = false, stopper = false;
    std::string title, txt_scale, name = "(new scale)";
    std::array<PlainScaleString, 6> strings;
};

} // namespace tabrova::testing

// What the plain model of the chord manager works on: the two folders, the document under the cursor, and
// what goes out, MIDI messages and message boxes. It knows only what the chord manager needs.
#pragma once

#include "tests/tools/chord_manager/plain_chord_tables.h"

#include <array>
#include <set>
#include <utility>

namespace tabrova::testing {

struct PlainBox {
    std::string title, text, icon, buttons;
    bool operator==(const PlainBox&) const = default;
};

// The name, and the bytes.
using PlainFolder = std::map<std::string, std::string>;

struct PlainDesk {
    PlainFolder chordFiles, typeFiles;
    std::set<std::string> blocked; // names that stand for a folder in both
    bool answersYes = true;

    std::vector<std::array<int, 3>> midi;
    std::vector<PlainBox> boxes;

    std::map<std::pair<int, int>, std::string> notes; // by column and row, without the empty ones
    std::vector<bool> guitar = {true};
    int staffs = 1, staff = 1, columnInStaff = 0, track = 1, string = 0;
    bool powerChord = false;

    // Sound.
    void NoteOn(int channel, int note) { midi.push_back({0x90 + channel, note, 127}); }
    void ProgramChange(int channel, int program) {
        midi.push_back({0xB0 + channel, 0, 128});
        midi.push_back({0xC0 + channel, program, 0});
    }
    void ChannelNotesOff(int channel) {
        midi.push_back({0xB0 + channel, 120, 0});
        midi.push_back({0xB0 + channel, 123, 0});
    }
    void AllNotesOff() {
        for (int channel = 0; channel <= 8; ++channel)
            ChannelNotesOff(channel);
    }

    // Boxes.
    void tell(const std::string& text, const std::string& icon) {
        boxes.push_back({"Tabrova for Windows", text, icon, "ok"});
    }
    bool ask(const std::string& text, const std::string& icon) {
        boxes.push_back({"Tabrova for Windows", text, icon, "yes no"});
        return answersYes;
    }

    // Files. False if the file cannot be made.
    bool write(PlainFolder& folder, const std::string& name, const std::string& line) const {
        if (!plainNameServes(name) || blocked.contains(name)) return false;
        folder[name] = line + "\r\n";
        return true;
    }

    // The document.
    bool onGuitarTrack() const { return guitar[static_cast<std::size_t>(track - 1)]; }
    std::pair<int, int> cell(int onString) const {
        return {staff * 32 - 32 + columnInStaff, track * 6 - 6 + onString};
    }
    void store(int onString, const std::string& text) {
        notes.erase(cell(onString));
        if (!text.empty()) notes[cell(onString)] = text;
    }
    std::string stored(int onString) const {
        const auto found = notes.find(cell(onString));
        return found == notes.end() ? "" : found->second;
    }
    void emptyColumn() {
        for (int each = 0; each < 6; ++each)
            store(each, "");
    }
    // A digit as if it had been typed on the string; nothing sounds but the silence before it.
    void DrawAndStoreNote(int onString, int digit) {
        const std::string old = stored(onString);
        store(onString, (old == "1" || old == "2" ? old : "") + std::to_string(digit));
        if (powerChord && onString >= 4) {
            const int root = std::stoi(stored(onString));
            for (const int higher : {onString - 1, onString - 2})
                if (root < 28) store(higher, std::to_string(root + 2));
        }
        AllNotesOff();
    }
    void MoveCursor(int keyCode) {
        if (keyCode == 38 && string > 0) --string;
        if (keyCode == 40 && string < 5) ++string;
        if (keyCode == 37) moveLeft();
        if (keyCode == 39) moveRight();
    }
    void moveLeft() {
        if (columnInStaff > 0) {
            --columnInStaff;
        } else if (staff > 1) {
            columnInStaff = 31;
            --staff;
        }
    }
    void moveRight() {
        if (columnInStaff < 31) {
            ++columnInStaff;
            return;
        }
        if (staff == staffs) ++staffs;
        columnInStaff = 0;
        ++staff;
    }
};

} // namespace tabrova::testing

// A plain and slow model of the chord manager, to compare the window with: one class, no tables but its own,
// every step written out as it is told. Strings count from the lowest.
#pragma once

#include "tests/tools/chord_manager/plain_list.h"

namespace tabrova::testing {

enum PlainStyle { PlainOpen, PlainBarre, PlainAll };

struct PlainMark {
    bool visible = false, red = false;
};
struct PlainTimer {
    bool enabled;
    int interval;
};
using PlainTexts = std::array<std::string, PlainStrings>;

class PlainChordManager {
  public:
    // The window opens.
    explicit PlainChordManager(PlainDesk& onDesk) : desk(onDesk) {
        frets.fill("");
        entries.fill("0");
        desk.ProgramChange(14, 24);
        for (const auto& [name, pattern] : PlainTypes)
            desk.write(desk.typeFiles, name, pattern);
        types.readAgain(desk.typeFiles);
        chords.readAgain(desk.chordFiles);
        showPreview();
    }
    void close() { desk.AllNotesOff(); }

    // The calculator.
    void lstKeys_Click(int row) {
        keyRow = row;
        CurrentKeyName = row;
        LoadChordType();
    }
    void LoadChordType();
    void SaveChordType(const std::string& name, const std::string& pattern) {
        if (!desk.write(desk.typeFiles, name, pattern))
            return desk.tell("This chord type cannot be saved, as its name contains invalid characters.",
                             "exclamation");
        types.readAgain(desk.typeFiles);
    }
    void deleteType() {
        if (!types.chosen) return;
        const std::string text = "Do you want to delete the chord type '" + *types.chosen + "' ?";
        if (desk.ask(text, "question")) desk.typeFiles.erase(*types.chosen);
        types.readAgain(desk.typeFiles);
    }

    // The bank.
    void LoadUserChord();
    void SaveUserChord();
    void deleteChord() {
        if (!chords.chosen) return;
        const std::string text = "Do you want to delete the chord '" + *chords.chosen + "' ?";
        if (!desk.ask(text, "exclamation")) return;
        desk.chordFiles.erase(*chords.chosen);
        chords.readAgain(desk.chordFiles);
    }
    void txt_Find_Change(const std::string& text) {
        chords.pattern = text + "*";
        chords.readAgain(desk.chordFiles);
    }
    // Each key stroke is a change, also one that brings the same text again.
    void type(std::size_t string, const std::string& text) {
        if (entries[string].empty() && text.empty()) return;
        change(string, text);
    }
    void enter(std::size_t string, const std::string& text) {
        if (entries[string] != text) change(string, text);
    }
    void change(std::size_t string, const std::string& text) {
        entries[string] = text;
        CheckFretEntry(string);
        PreviewNewChord();
    }

    // Sound.
    void PlayChordNow();
    void tmrChordPlayer_Timer();
    void tmrChordStopper_Timer() {
        if (!stopper.enabled) return;
        stopper.enabled = false;
        desk.AllNotesOff();
    }
    void nbnSlider_Change(int value) { player.interval = 750 - value; }
    void strumDown() { StrumDown = true; }
    void strumMove(int twips);
    void strumUp(int twips);

    // The document.
    void AddChordToDocument() {
        if (!allowsChords()) return;
        desk.emptyColumn();
        for (int string = 0; string < 6; ++string) {
            const std::string& text = frets[static_cast<std::size_t>(5 - string)];
            if (text.size() == 1 && text[0] >= '0' && text[0] <= '6')
                desk.DrawAndStoreNote(string, text[0] - '0');
        }
    }
    void RemoveChordFromDocument() {
        if (allowsChords()) desk.emptyColumn();
    }

    PlainDesk& desk;
    PlainList types, chords;
    int keyRow = -1, CurrentKeyName = 0;
    int style = PlainOpen;
    bool additionMode = false, playNow = false, noteByNote = false, transpose = false;
    std::string title = "<no chord>";
    std::array<int, 22> cCheck{}; // as the boxes show it: 2 is grey
    std::array<bool, 12> chkKey{}, chkKeyRed{};
    std::array<std::array<PlainMark, 7>, PlainStrings> marks{};
    PlainTexts frets, entries;
    std::set<std::string> staff;
    std::array<std::size_t, PlainStrings> preview{}; // the one mark that is shown
    std::string newChordName = "(new chord)", find;
    PlainTimer player = {false, 120}, stopper = {false, 2000};
    int highlight = -1; // of the strum strip, the highest string is 0

  private:
    void ComputeChord(const std::array<int, 22>& values);
    void ClearChordDisplay();
    void showNotes();
    void PickChordFrets();
    int pickedFret(std::size_t string) const;
    void askForKeyAndType();
    void CheckFretEntry(std::size_t string);
    void PreviewNewChord();
    void showPreview();
    bool storeUserChord();
    bool soundString(std::size_t string);
    static int bandAt(int twips);
    static bool silent(const std::string& text) { return text.empty() || text == " " || text == "x"; }
    static bool isDigit(char character) { return character >= '0' && character <= '9'; }
    bool allowsChords() {
        if (!desk.onGuitarTrack())
            desk.tell("Chords cannot be written into a percussion track.", "information");
        return desk.onGuitarTrack();
    }

    int PlayerStep = 0;
    bool StrumDown = false, SavingChord = false;
    std::array<bool, PlainStrings> StrumPlayed{}; // the highest string first
};

} // namespace tabrova::testing

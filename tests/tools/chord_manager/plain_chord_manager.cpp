#include "tests/tools/chord_manager/plain_chord_manager.h"

namespace tabrova::testing {

void PlainChordManager::LoadChordType() {
    if (!types.chosen) types.choose(0);
    const auto file = desk.typeFiles.find(types.text());
    const std::string text = file == desk.typeFiles.end() ? "" : plainFirstItem(file->second);
    std::array<int, 22> values{};
    for (std::size_t at = 0; at < 22 && at < text.size(); ++at)
        if (isDigit(text[at])) values[at] = text[at] - '0';
    desk.AllNotesOff();
    ComputeChord(values);
}

void PlainChordManager::ComputeChord(const std::array<int, 22>& values) {
    for (std::size_t at = 0; at < 22; ++at)
        if (values[at] <= 2) cCheck[at] = values[at]; // a box takes no other value
    ClearChordDisplay();
    const PlainPlace red = PlainNotes[static_cast<std::size_t>(CurrentKeyName)].root;
    marks[static_cast<std::size_t>(red.string)][static_cast<std::size_t>(red.fret)] = {true, true};
    const auto root = static_cast<std::size_t>(CurrentKeyName);
    chkKey[root] = chkKeyRed[root] = true;
    for (std::size_t at = 0; at < 22; ++at) {
        std::size_t note = at + root;
        while (note >= 12)
            note -= 12;
        if (values[at] == 1) chkKey[note] = true;
    }
    showNotes();
    PickChordFrets();
    desk.ChannelNotesOff(14);
    if (playNow) PlayChordNow();
}

void PlainChordManager::ClearChordDisplay() {
    for (auto& string : marks)
        string.fill({false, false});
    chkKey.fill(false);
    chkKeyRed.fill(false);
}

void PlainChordManager::showNotes() {
    staff.clear();
    for (std::size_t note = 0; note < 12; ++note) {
        if (!chkKey[note]) continue;
        for (const PlainPlace& place : PlainNotes[note].marks)
            marks[static_cast<std::size_t>(place.string)][static_cast<std::size_t>(place.fret)].visible =
                true;
        staff.insert(PlainNotes[note].staff.begin(), PlainNotes[note].staff.end());
    }
}

int PlainChordManager::pickedFret(std::size_t string) const {
    int fret = 0;
    if (style == PlainBarre) {
        for (int at = 0; at <= 4; ++at)
            if (marks[string][static_cast<std::size_t>(at)].visible) fret = at;
    } else {
        for (int at = 4; at >= 0; --at)
            if (marks[string][static_cast<std::size_t>(at)].visible) fret = at;
    }
    return fret;
}

void PlainChordManager::PickChordFrets() {
    for (std::size_t string = 0; string < PlainStrings; ++string) {
        const int fret = pickedFret(string);
        frets[string] = std::to_string(fret);
        if (style == PlainAll) continue;
        for (std::size_t at = 0; at <= 4; ++at)
            marks[string][at].visible = false;
        marks[string][static_cast<std::size_t>(fret)].visible = true;
    }
    askForKeyAndType();
    const char* const suffixes[] = {"(Open)", "(Barre)", "(All Notes)"};
    title = PlainKeys[static_cast<std::size_t>(keyRow)] + " " + types.text() + " " + suffixes[style];
}

void PlainChordManager::askForKeyAndType() {
    if (keyRow < 0) lstKeys_Click(0);
    if (types.chosen || types.rows.empty()) return;
    types.choose(0);
    LoadChordType();
}

void PlainChordManager::LoadUserChord() {
    const auto file = desk.chordFiles.find(chords.text());
    const std::string text = file == desk.chordFiles.end() ? "" : plainFirstItem(file->second);
    for (std::size_t string = 0; string < PlainStrings; ++string) {
        frets[string] = string < text.size() ? text.substr(string, 1) : "";
        if (frets[string] == "x") frets[string] = " ";
    }
    ClearChordDisplay();
    for (std::size_t string = 0; string < PlainStrings; ++string)
        for (std::size_t fret = 0; fret <= 6; ++fret)
            if (frets[string] == std::to_string(fret)) marks[string][fret].visible = true;
    title = chords.text() + " (User)";
    if (playNow) PlayChordNow();
}

void PlainChordManager::CheckFretEntry(std::size_t string) {
    const std::string& text = entries[string];
    if (silent(text) || (isDigit(text[0]) && text[0] <= '6')) return;
    desk.tell(std::string("The fret on the ") + PlainStringNames[string] +
                  " string must be a number from 0 to 6, or x.",
              "information");
    enter(string, "0");
}

void PlainChordManager::showPreview() {
    for (std::size_t string = 0; string < PlainStrings; ++string)
        preview[string] = silent(entries[string]) ? 7 : static_cast<std::size_t>(entries[string][0] - '0');
}

void PlainChordManager::PreviewNewChord() {
    showPreview();
    if (!playNow || SavingChord) return;
    for (std::size_t string = 0; string < PlainStrings; ++string)
        if (preview[string] != 7) desk.NoteOn(14, static_cast<int>(preview[string]) + PlainOpenNotes[string]);
    stopper.enabled = true;
}

void PlainChordManager::SaveUserChord() {
    SavingChord = true;
    for (std::size_t string = 0; string < PlainStrings; ++string)
        if (entries[string].empty() || entries[string] == " ") enter(string, "x");
    if (!storeUserChord())
        desk.tell("The chord cannot be saved. Please check its name and the numbers of its frets.",
                  "exclamation");
    SavingChord = false;
}

bool PlainChordManager::storeUserChord() {
    std::string line;
    for (const std::string& entry : entries)
        line += entry;
    if (!desk.write(desk.chordFiles, newChordName, line)) return false;
    chords.readAgain(desk.chordFiles);
    desk.tell("The chord '" + newChordName + "' has been saved.", "information");
    newChordName = "(new chord)";
    for (std::size_t string = 0; string < PlainStrings; ++string)
        if (entries[string] == "x") enter(string, "");
    return true;
}

bool PlainChordManager::soundString(std::size_t string) {
    const std::string& text = frets[string];
    if (text.size() != 1 || !isDigit(text[0])) return false;
    desk.NoteOn(14, text[0] - '0' + PlainOpenNotes[string]);
    return true;
}

void PlainChordManager::PlayChordNow() {
    if (noteByNote) {
        PlayerStep = 0;
        player.enabled = true;
        return;
    }
    for (std::size_t string = 0; string < PlainStrings; ++string)
        soundString(string);
    stopper.enabled = true;
}

void PlainChordManager::tmrChordPlayer_Timer() {
    if (!player.enabled) return;
    if (PlayerStep == 20) {
        player.enabled = false;
        desk.AllNotesOff();
    }
    if (PlayerStep >= 1 && PlayerStep <= 6) soundString(static_cast<std::size_t>(PlayerStep - 1));
    ++PlayerStep;
}

int PlainChordManager::bandAt(int twips) {
    constexpr int Bounds[] = {0, 165, 315, 465, 615, 765, 900};
    for (int band = 0; band < PlainStrings; ++band)
        if (twips > Bounds[band] && twips < Bounds[band + 1]) return band;
    return -1;
}

void PlainChordManager::strumMove(int twips) {
    highlight = bandAt(twips);
    if (!StrumDown) return;
    const auto band = static_cast<std::size_t>(highlight);
    if (highlight >= 0 && !StrumPlayed[band]) StrumPlayed[band] = soundString(5 - band);
    stopper.enabled = true;
}

void PlainChordManager::strumUp(int twips) {
    StrumDown = false;
    if (const int band = bandAt(twips); band >= 0) {
        soundString(static_cast<std::size_t>(5 - band));
        stopper.enabled = true;
    }
    StrumPlayed.fill(false);
}

} // namespace tabrova::testing

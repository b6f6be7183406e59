// The acts on sound, bank, files and document.
#include "forms/folder_list.h"
#include "tests/tools/chord_manager/chord_acts.h"

#include <QLineEdit>

#include <fstream>

namespace tabrova::testing {

void ChordActs::play() {
    told("play");
    window->press("cmdPlay");
    model->PlayChordNow();
}

void ChordActs::tickPlayer() {
    told("player ticks");
    window->timer("tmrChordPlayer").fire();
    model->tmrChordPlayer_Timer();
}

void ChordActs::tickStopper() {
    told("stopper ticks");
    window->timer("tmrChordStopper").fire();
    model->tmrChordStopper_Timer();
}

// In pixels, of which each is 15 twips: on the boundaries as well, and beside the strip.
int ChordActs::strumHeight() {
    const int y =
        below(3) == 0 ? oneOf<int>({-4, 0, 11, 21, 31, 41, 51, 60, 66}) : static_cast<int>(below(60));
    told(" at " + std::to_string(y));
    return y;
}

void ChordActs::strumPress() {
    const Qt::MouseButton button = oneOf<Qt::MouseButton>({Qt::LeftButton, Qt::LeftButton, Qt::RightButton});
    if (held_.testFlag(button)) return told("no button more");
    told("press " + std::to_string(button));
    held_ |= button;
    window->strum(QEvent::MouseButtonPress, strumHeight(), button, held_);
    model->strumDown();
}

void ChordActs::strumMove() {
    told("move");
    const int y = strumHeight();
    window->strum(QEvent::MouseMove, y, Qt::NoButton, held_);
    model->strumMove(y * 15);
}

void ChordActs::strumRelease() {
    const Qt::MouseButton button = oneOf<Qt::MouseButton>({Qt::LeftButton, Qt::LeftButton, Qt::RightButton});
    if (!held_.testFlag(button)) return told("no button down");
    told("release " + std::to_string(button));
    held_ &= ~Qt::MouseButtons(button);
    const int y = strumHeight();
    window->strum(QEvent::MouseButtonRelease, y, button, held_);
    model->strumUp(y * 15);
}

void ChordActs::chooseChord() {
    told("chord");
    window->showTabOf("lst_Chords");
    if (model->chords.rows.empty()) return;
    std::optional<std::size_t> row = below(model->chords.rows.size());
    if (model->chords.chosen && below(3) == 0)
        row = stepRow("lst_Chords", model->chords);
    else
        window->clickRow("lst_Chords", static_cast<int>(*row));
    if (!row) return;
    told(" " + model->chords.rows[*row]);
    model->chords.choose(*row);
    model->LoadUserChord();
}

void ChordActs::find() {
    const std::string text = oneOf<std::string>({"", "", "", "C", "a", "?2", "*y", "(n", "qq"});
    told("find " + text);
    window->type("txt_Find", text);
    if (text.empty() && !model->find.empty()) model->txt_Find_Change("");
    for (std::size_t typed = 1; typed <= text.size(); ++typed)
        model->txt_Find_Change(text.substr(0, typed));
    model->find = text;
}

void ChordActs::enterFret() {
    const char* const names[] = {"txt_addcrdL", "txt_addcrda", "txt_addcrdD",
                                 "txt_addcrdg", "txt_addcrdb", "txt_addcrde"};
    const std::size_t string = below(6);
    const std::string text = oneOf<std::string>({"0", "1", "2", "3", "4", "5", "6", "7", "8",  "9", "x",
                                                 "X", " ", "",  "-", "+", ".", ",", "a", "\"", "x", "3"});
    told("enter " + text + " on " + PlainStringNames[string]);
    window->type(names[string], text);
    model->type(string, text);
}

void ChordActs::nameChord() {
    const std::string name =
        oneOf<std::string>({"C", "c2", "A&B", "G\xC3\xB6", "a:b", "6 9x", "x,y", "", ".", "..", "a/b", "a\\b",
                            "Dir", "ABCDEFGHIJKLMNOPQRST", "D", "(new chord)"});
    told("name " + name);
    window->paste("txt_NewChordName", name);
    model->newChordName = name.substr(0, 15);
}

void ChordActs::saveChord() {
    told("save");
    window->press("Command2");
    model->SaveUserChord();
}

// Bytes that are no text: what a small file may hold by mistake. Quotes would open an item anew.
std::string ChordActs::binary(std::size_t bytes) {
    std::string text;
    while (text.size() < bytes)
        if (const auto byte = below(256);
            byte != '"' && byte != '\t' && byte > 0 && (byte < 0x80 || byte >= 0xA0))
            text += static_cast<char>(byte);
    return text;
}

void ChordActs::makeChordFile() {
    const std::string name = oneOf<std::string>({"C", "hand", "c9", "x,y"});
    const std::string bytes = oneOf<std::string>({"x32010\r\n", "320", "789012345\r\n", "0,1234", "\"0,2\"34",
                                                  "abcdef\n", "  x02210\r", "", "\r\n012", "9876xX", "3 3,",
                                                  "12\"34,5", ",,,", "-1+2.3", binary(6), binary(9)});
    told("chord file " + name + " with " + bytes);
    std::ofstream(folder() / "chords" / name, std::ios::binary | std::ios::trunc) << bytes;
    desk.chordFiles[name] = bytes;
}

void ChordActs::makeTypeFile() {
    const std::string name = oneOf<std::string>({"Maj", "hand", "7", "0", "zz"});
    std::string digits;
    while (digits.size() < 26)
        digits += static_cast<char>('0' + (below(4) == 0 ? below(10) : below(2)));
    const std::string bytes =
        oneOf<std::string>({digits, digits.substr(0, 22) + "\r\n", digits.substr(0, 5), "1000,100100100",
                            "\"1001,\"111", "  " + digits.substr(4), "1a0b1001x1", "", "\n1111", binary(22),
                            "0000000000000000000000\r\n", "2222222"});
    told("type file " + name + " with " + bytes);
    std::ofstream(folder() / "chordtypes" / name, std::ios::binary | std::ios::trunc) << bytes;
    desk.typeFiles[name] = bytes;
}

// Of one folder some file, sometimes all files.
void ChordActs::removeFile() {
    const bool chord = below(2) == 0;
    PlainFolder& entries = chord ? desk.chordFiles : desk.typeFiles;
    const std::filesystem::path place = folder() / (chord ? "chords" : "chordtypes");
    std::size_t count = std::min(entries.size(), below(12) == 0 ? entries.size() : 1);
    told("remove " + std::to_string(count) + " of " + place.filename().string());
    for (; count > 0; --count) {
        const auto file = std::next(entries.begin(), static_cast<std::ptrdiff_t>(below(entries.size())));
        std::filesystem::remove(place / file->first);
        entries.erase(file);
    }
}

void ChordActs::readListAgain() {
    const bool chord = below(2) == 0;
    told(chord ? "read chords" : "read types");
    dynamic_cast<FolderList&>(window->at(chord ? "lst_Chords" : "lstTypes")).readAgain();
    chord ? model->chords.readAgain(desk.chordFiles) : model->types.readAgain(desk.typeFiles);
}

void ChordActs::reopen() {
    told("reopen");
    close();
    held_ = {};
    open();
}

bool ChordActs::adderIsShown() {
    if (!model->additionMode) told("no adder");
    return model->additionMode;
}

void ChordActs::addChord() {
    if (!adderIsShown()) return;
    told("add");
    window->press("Image10");
    model->AddChordToDocument();
}

void ChordActs::removeChord() {
    if (!adderIsShown()) return;
    told("remove");
    window->press("Image6");
    model->RemoveChordFromDocument();
}

void ChordActs::moveCursor() {
    if (!adderIsShown()) return;
    const std::pair<const char*, int> arrows[] = {
        {"Image5", 38}, {"Image7", 37}, {"Image8", 40}, {"Image9", 39}, {"Image9", 39}};
    const auto& [button, keyCode] = arrows[below(5)];
    told(std::string("arrow ") + button);
    for (std::size_t presses = below(4) == 0 ? 20 : 1; presses > 0; --presses) {
        window->press(button);
        desk.MoveCursor(keyCode);
    }
}

void ChordActs::changeTrack() {
    desk.track = static_cast<int>(below(3)) + 1;
    told("track " + std::to_string(desk.track));
    document().CurrentTrack = static_cast<std::int16_t>(desk.track);
}

void ChordActs::togglePowerChord() {
    told("power chord");
    desk.powerChord = !desk.powerChord;
    bench.editor.modes.powerChord = desk.powerChord;
}

} // namespace tabrova::testing

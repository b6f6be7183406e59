// The calculator's side, and what both sides share. The bank stands in frmChordWizard_bank.cpp, the controls
// in frmChordWizard_controls.cpp.
#include "tools/chord_manager/frmChordWizard.h"

#include "core/files/entry_file.h"
#include "editing/key_codes.h"
#include "forms/entry_path.h"
#include "forms/folder_list.h"
#include "forms/picture_button.h"
#include "platform/box_title.h"
#include "platform/paths.h"
#include "tools/chord_manager/chord_diagram.h"
#include "tools/chord_manager/chord_staff.h"
#include "tools/chord_manager/construction_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include <algorithm>

namespace tabrova {

namespace {

std::size_t noteIndex(std::string_view name) {
    const auto table = chordNoteTable();
    const auto row = std::find_if(table.begin(), table.end(),
                                  [name](const ChordNoteRow& each) { return each.name == name; });
    return row == table.end() ? 0 : static_cast<std::size_t>(row - table.begin());
}

} // namespace

// Nothing is computed until the user chooses something.
void frmChordWizard::Form_Load() {
    LoadLanguage();
    construction_->arrange();
    Combo1_->addItems({words_["openChords"], words_["barreChords"], words_["allNotes"]});
    lstView_->addItems({words_["notationView"], words_["additionView"]});
    sound_.SavingChord = false;
    CurrentKeyName = "A";
    sound().ProgramChange(ChordChannel, ChordProgram);
    std::error_code failed;
    for (const std::filesystem::path& folder : {chordFolder(), typeFolder()})
        std::filesystem::create_directory(folder, failed);
    for (const ChordTypeRow& type : builtInChordTypes())
        SaveChordType(type.name, type.pattern);
    lst_Chords_->showFolder(chordFolder());
    lstTypes_->showFolder(typeFolder());
    showDisplay();
}

void frmChordWizard::Form_Unload() {
    context_.tools.unload("frmChordTypeCreator");
    sound_.stop();
    sound().AllNotesOff();
}

void frmChordWizard::takeMessage(std::string_view name, const QString& text) {
    words_[std::string(name)] = text;
}

void frmChordWizard::tell(const QString& text, BoxIcon icon) { services().boxes.ask({BoxTitle, text, icon}); }

void frmChordWizard::lstKeys_Click() {
    if (lstKeys_->chosenRow() < 0) return;
    CurrentKeyName = lstKeys_->currentItem()->text();
    LoadChordType();
}

void frmChordWizard::LoadChordType() {
    if (lstTypes_->chosenRow() < 0) lstTypes_->setCurrentRow(0);
    const std::string text = readFirstItem(ChordTypeFile()).value_or("");
    sound().AllNotesOff();
    ComputeChord(chordValues(text));
}

void frmChordWizard::ComputeChord(const ChordValues& values) {
    construction_->showValues(values);
    showChordNotes(display_, noteIndex(CurrentKeyName.toStdString()), values);
    PickChordFrets();
    sound().ChannelNotesOff(ChordChannel);
    if (chkPlayNow_->isChecked()) PlayChordNow();
}

// Without a key or a type the chord is computed once more, with the first one, in the middle of this.
void frmChordWizard::PickChordFrets() {
    pickChordFrets(display_, style());
    if (lstKeys_->chosenRow() < 0) {
        lstKeys_->setCurrentRow(0);
        lstKeys_Click();
    }
    if (lstTypes_->chosenRow() < 0 && lstTypes_->count() > 0) LoadChordType();
    lblTitle_->setText(CurrentKeyName + " " + typeName() + " " + titleSuffix(style()));
    showDisplay();
}

std::filesystem::path frmChordWizard::ChordTypeFile() const { return typeFolder() / lstTypes_->chosenName(); }

QString frmChordWizard::typeName() const { return textOf(lstTypes_->chosenName()); }

CalculatorStyle frmChordWizard::style() const {
    return static_cast<CalculatorStyle>(std::max(Combo1_->currentIndex(), 0));
}

void frmChordWizard::showDisplay() {
    diagram_->showChord(display_);
    staff_->showChord(display_);
    for (std::size_t note = 0; note < ChordNotes; ++note) {
        chkKey_[note]->setChecked(display_.chkKey[note].checked);
        QPalette palette = chkKey_[note]->palette();
        palette.setColor(QPalette::WindowText, display_.chkKey[note].root ? Qt::red : Qt::black);
        chkKey_[note]->setPalette(palette);
    }
}

void frmChordWizard::SaveChordType(const QString& name, std::string_view pattern) {
    const auto file = newEntryPath(typeFolder(), name);
    if (!file || !writeEntryFile(*file, pattern)) return tell(words_["typeNotSaved"], BoxIcon::Exclamation);
    lstTypes_->readAgain();
}

void frmChordWizard::deleteType() {
    if (lstTypes_->chosenRow() < 0) return;
    const std::filesystem::path file = ChordTypeFile();
    const QString question =
        words_["deleteTypeBefore"] + " '" + typeName() + "' " + words_["deleteTypeAfter"];
    const BoxAnswer answer =
        services().boxes.ask({BoxTitle, question, BoxIcon::Question, {BoxAnswer::Yes, BoxAnswer::No}});
    if (answer == BoxAnswer::Yes) removeEntryFile(file);
    lstTypes_->readAgain();
}

void frmChordWizard::PlayChordNow() { sound_.PlayChordNow(chkNotebyNote_->isChecked()); }

void frmChordWizard::AddChordToDocument() {
    StringFrets frets;
    for (std::size_t string = 0; string < ChordStrings; ++string)
        frets[static_cast<std::size_t>(ChordStringTable[string].documentRow)] = display_.frets[string];
    if (!context_.commands.chords.AddChordToDocument(frets)) percussionTrack();
}

void frmChordWizard::RemoveChordFromDocument() {
    if (!context_.commands.chords.RemoveChordFromDocument()) percussionTrack();
}

void frmChordWizard::percussionTrack() { tell(words_["percussionTrack"], BoxIcon::Information); }

// The page takes no keys while it plays.
void frmChordWizard::moveCursor(int keyCode) {
    if (!context_.bench.player.playing) editor().picDocument_KeyDown(keyCode, 0);
}

void frmChordWizard::actEnded(std::string_view, const Changes& changes) {
    if (!changes.playing) return;
    for (PictureButton* button : adderButtons_)
        button->setEnabled(!context_.bench.player.playing);
}

} // namespace tabrova

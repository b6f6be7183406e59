// The bank of the user's own chords: small files, one a chord.
#include "core/files/entry_file.h"
#include "forms/entry_path.h"
#include "forms/folder_list.h"
#include "platform/box_title.h"
#include "platform/paths.h"
#include "tools/chord_manager/frmChordWizard.h"
#include "tools/chord_manager/new_chord_panel.h"

#include <QCheckBox>
#include <QLabel>

namespace tabrova {

std::filesystem::path frmChordWizard::ChordFile() const { return chordFolder() / lst_Chords_->chosenName(); }

// The keys' boxes stay empty, and the staff keeps what it showed. Nothing is silenced before it sounds.
void frmChordWizard::LoadUserChord() {
    if (lst_Chords_->chosenRow() < 0) return;
    showUserChord(display_, readFirstItem(ChordFile()).value_or(""));
    showDisplay();
    lblTitle_->setText(textOf(lst_Chords_->chosenName()) + " (User)");
    if (chkPlayNow_->isChecked()) PlayChordNow();
}

void frmChordWizard::SaveUserChord() {
    sound_.SavingChord = true;
    Frame5_->fillSilentEntries();
    storeUserChord();
    sound_.SavingChord = false;
}

// The entries that were filled with an "x" keep it if the chord cannot be saved.
void frmChordWizard::storeUserChord() {
    const auto line = chordLine(Frame5_->entries());
    const QString name = Frame5_->name();
    const auto file = newEntryPath(chordFolder(), name);
    if (!line || !file || !writeEntryFile(*file, *line))
        return tell(words_["chordNotSaved"], BoxIcon::Exclamation);
    lst_Chords_->readAgain();
    tell(words_["savedBefore"] + " '" + name + "' " + words_["savedAfter"], BoxIcon::Information);
    Frame5_->clearSaved();
}

void frmChordWizard::deleteChord() {
    if (lst_Chords_->chosenRow() < 0) return;
    const std::filesystem::path file = ChordFile();
    const QString question = words_["deleteChord"] + " '" + textOf(lst_Chords_->chosenName()) + "' ?";
    const BoxAnswer answer =
        services().boxes.ask({BoxTitle, question, BoxIcon::Exclamation, {BoxAnswer::Yes, BoxAnswer::No}});
    if (answer != BoxAnswer::Yes) return;
    removeEntryFile(file);
    lst_Chords_->readAgain();
}

void frmChordWizard::showBadEntry(const char* stringName) {
    tell(words_["badFretBefore"] + " " + stringName + " " + words_["badFretAfter"], BoxIcon::Information);
}

} // namespace tabrova

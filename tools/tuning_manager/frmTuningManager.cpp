#include "tools/tuning_manager/frmTuningManager.h"

#include "core/files/entry_file.h"
#include "forms/entry_path.h"
#include "forms/folder_list.h"
#include "forms/picture_button.h"
#include "forms/preset_list.h"
#include "platform/box_title.h"
#include "platform/paths.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace tabrova {

namespace {

constexpr char CustomTuning[] = "(custom tuning)"; // no row of the list

} // namespace

void frmTuningManager::Form_Load() {
    LoadLanguage();
    std::error_code failed;
    std::filesystem::create_directory(folder(), failed);
    lstTunings_->showFolder(folder());
    showTuner();
}

void frmTuningManager::Form_Unload() { tuner_.stop(); }

void frmTuningManager::takeMessage(std::string_view name, const QString& text) {
    words_[std::string(name)] = text;
}

void frmTuningManager::showTuner() {
    const TunerState& state = tuner_.state();
    for (std::size_t string = 0; string < TuningStrings; ++string) {
        const QSignalBlocker quiet(lists_[string]);
        lists_[string]->setCurrentIndex(state.items[string]);
        buttons_[string]->setChecked(state.pressed[string]);
        buttons_[string]->setEnabled(state.stringsEnabled);
    }
    Picture1_->setChecked(state.allPressed);
    Combo1_->showRow(state.custom ? -1 : preset_, CustomTuning);
}

std::filesystem::path frmTuningManager::TuningFile() const { return folder() / lstTunings_->chosenName(); }

void frmTuningManager::loadTuning() {
    if (lstTunings_->chosenRow() < 0) return;
    const QString name = textOf(lstTunings_->chosenName());
    if (const auto line = readFirstItem(TuningFile())) return tuner_.takeLine(*line);
    services().boxes.ask(
        {BoxTitle, words_["notLoadedBefore"] + " '" + name + "' " + words_["notLoadedAfter"], BoxIcon::None});
}

// What cannot be saved is not, without a word.
void frmTuningManager::SaveTuning() {
    tuner_.completeLists();
    const QString name = txtNAME_->text();
    const auto file = newEntryPath(folder(), name);
    if (!file || !writeEntryFile(*file, tuner_.line())) return;
    lstTunings_->readAgain();
    services().boxes.ask(
        {BoxTitle, words_["savedBefore"] + " '" + name + "' " + words_["savedAfter"], BoxIcon::Information});
}

void frmTuningManager::deleteTuning() {
    if (lstTunings_->chosenRow() < 0) return;
    const std::filesystem::path file = TuningFile();
    const QString question = words_["deleteTuning"] + " '" + textOf(lstTunings_->chosenName()) + "' ?";
    const BoxAnswer answer =
        services().boxes.ask({BoxTitle, question, BoxIcon::Exclamation, {BoxAnswer::Yes, BoxAnswer::No}});
    if (answer != BoxAnswer::Yes) return;
    removeEntryFile(file);
    lstTunings_->readAgain();
}

void frmTuningManager::AssignTuning() {
    std::array<std::int16_t, TuningStrings> positions;
    for (std::size_t string = 0; string < TuningStrings; ++string)
        positions[string] =
            static_cast<std::int16_t>(assignedPosition(string, lists_[string]->currentText().toStdString()));
    context_.commands.tracks.assignTuning(positions[0], positions[1], positions[2], positions[3],
                                          positions[4], positions[5]);
    close();
}

} // namespace tabrova

// `frmTuningManager`, the tuning manager: a tuning from presets, from the user's own or string by string,
// heard while a guitar is tuned after it, and given to the current track.
#pragma once

#include "tools/tuning_manager/tuner.h"
#include "workbench/tool_window.h"

#include <map>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tabrova {

class FolderList;
class PictureButton;
class PresetList;

class frmTuningManager : public ToolWindow {
  public:
    frmTuningManager(const ToolContext& context, QWidget* parent);

    void Form_Load() override;
    void Form_Unload() override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    QWidget* buildTunings();
    QWidget* buildStrings();
    void connectControls();

    void showTuner();
    void loadTuning();
    void SaveTuning();
    void deleteTuning();
    void AssignTuning();
    // Of the chosen entry.
    std::filesystem::path TuningFile() const;
    std::filesystem::path folder() const { return programFolder() / "Tunings"; }

    Tuner tuner_;
    int preset_ = 0;
    std::map<std::string, QString, std::less<>> words_; // by the message's name

    PresetList* Combo1_;
    FolderList* lstTunings_;
    QLineEdit* txtNAME_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
    std::array<QComboBox*, TuningStrings> lists_;
    std::array<PictureButton*, TuningStrings> buttons_;
    PictureButton* Picture1_;
};

} // namespace tabrova

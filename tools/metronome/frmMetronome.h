// `frmMetronome`, the metronome's window.
#pragma once

#include "tools/metronome/metronome.h"
#include "workbench/tool_window.h"

#include <map>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace tabrova {

class BeatRow;
class ListBox;
class PresetList;

class frmMetronome : public ToolWindow {
  public:
    frmMetronome(const ToolContext& context, QWidget* parent);

    void Form_Load() override;
    void Form_Unload() override;
    void LoadLanguage() override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    QWidget* buildSettings();
    QLayout* buildPitch();
    void connectControls();

    void chooseRate();
    void choosePreset(int row);
    void txt_BTp_Change();
    void Command1_Click();
    void showMetronome();

    Metronome metronome_;
    std::map<std::string, QString, std::less<>> words_; // by the message's name

    BeatRow* beats_;
    PresetList* Combo1_;
    QGroupBox* Frame1_;
    ListBox* lst_Metronome_speed_;
    QSlider* sld_BPB_;
    QLabel* lblBPB_;
    QLineEdit* txt_BTp_;
    QSlider* sld_ClickPitch_;
    QLabel* lblClickPitch_;
    QPushButton* Command1_;
};

} // namespace tabrova

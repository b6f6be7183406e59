// `frmDrumMachine`, the drum machine's window.
#pragma once

#include "tools/drum_machine/drum_machine.h"
#include "workbench/tool_window.h"

#include <map>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace tabrova {

class DrumRowsView;
class PatternStrip;

class frmDrumMachine : public ToolWindow {
  public:
    frmDrumMachine(const ToolContext& context, QWidget* parent);

    void Form_Load() override;
    void Form_Unload() override;
    void LoadLanguage() override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;
    // Page keys go through the patterns.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLayout* buildPattern();
    QLayout* buildSpeed();
    QLayout* buildCommands();
    void connectControls();

    void pressStep(int row, int step);
    void Text1_Change();
    void saveSong();
    void openSong();
    void showChange(DrumMachine::Change change);
    void showPattern();
    void showSteps(int pattern);
    void showRows();
    void showPlayer();
    void showPlace();

    DrumMachine machine_;
    std::map<std::string, QString, std::less<>> words_; // by the message's name

    DrumRowsView* rows_;
    PatternStrip* picPatterns_;
    QSlider* sldPattern_;
    QLineEdit* Text1_;
    QLabel* lblSteps_;
    QSlider* sldSpeed_;
    QSpinBox* spnSpeed_;
    QCheckBox* chkPlayAll_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
};

} // namespace tabrova

// `frmOptions`: the MIDI output device with the built-in synthesizer, what note entry plays, appearance and
// language, on two tabs. It is loaded at the start, since its device list opens the device, and stays loaded.
// Settings take effect at once.
#pragma once

#include "forms/folder_list.h"
#include "organisers/options/options_rules.h"
#include "workbench/tool_window.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace tabrova {

class LanguageMark;

// Its tabs, as they are asked for.
struct OptionsTab {
    static constexpr int Sound = 0;
    static constexpr int Appearance = 1;
};

class frmOptions : public ToolWindow {
  public:
    frmOptions(const ToolContext& context, QWidget* parent);
    ~frmOptions() override;

    // Fills every control from the settings and the main window, and opens the stored device.
    void Form_Load() override;
    void Form_Opened(const ToolOpener::Opening& opening) override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    QWidget* buildSoundTab();
    QGroupBox* buildSynthesizerBox();
    QWidget* buildAppearanceTab();
    QWidget* buildCursorBox();
    QPushButton* buildCloseButton();
    void connectSound();
    void connectAppearance();

    void listLanguages();
    void markLanguageInUse();
    void chooseStoredDevice();
    void lst_Devices_Click();
    void lstLanguages_DblClick();
    void lstColors_Click();
    void chooseBank();
    void testSound();
    void showSynthesizer();
    void nameSynthesizer();

    DeviceClicks deviceClicks_;
    // What the synthesizer's labels say when there is nothing to name.
    QString loading_, none_, notInUse_;

    QTabWidget* OptionsTabs_;
    ListBox* lst_Devices_;
    QLabel* lblDeviceGone_;
    QGroupBox* grpSynthesizer_;
    QLabel* lblSoundBank_;
    QLabel* lblAudioOutput_;
    QLabel* lblSoundTrouble_;
    QPushButton* cmdSoundBank_;
    QPushButton* cmdTestSound_;
    std::array<QRadioButton*, 3> realtimeModes_; // by RealtimeMode
    ListBox* lstColors_;
    QCheckBox* chkEyeBall_;
    QCheckBox* chkTABOUT_;
    QCheckBox* chkStats_;
    QCheckBox* chkSplash_;
    QCheckBox* Check1_;
    QCheckBox* Check2_;
    FolderList* lstLanguages_;
    LanguageMark* languageMark_;
};

} // namespace tabrova

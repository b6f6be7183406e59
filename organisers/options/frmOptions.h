// `frmOptions`: the MIDI output device with the built-in synthesizer, what note entry plays, appearance and
// language, on two tabs. It is loaded at the start, since its device list opens the device, and stays loaded.
// Settings take effect at once.
#pragma once

#include "organisers/options/options_host.h"
#include "organisers/options/options_rules.h"
#include "platform/list_box.h"
#include "platform/services.h"

#include <QDialog>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace tabrova {

class frmOptions : public QDialog {
  public:
    frmOptions(Services& services, OptionsHost& host, QWidget* parent);
    ~frmOptions() override;

    // Fills every control from the settings and the main window, and opens the stored device.
    void Form_Load();
    void LoadLanguage();

  private:
    QWidget* buildSoundTab();
    QGroupBox* buildSynthesizerBox();
    QWidget* buildAppearanceTab();
    QWidget* buildCursorBox();
    void connectSound();
    void connectAppearance();

    void listLanguages();
    void chooseStoredDevice();
    void lst_Devices_Click();
    void lstColors_Click();
    void chooseBank();
    void testSound();
    void showSynthesizer();

    Services& services_;
    OptionsHost& host_;
    DeviceClicks deviceClicks_;

    QTabWidget* OptionsTabs_;
    QLabel* devicesLabel_;
    ListBox* lst_Devices_;
    QLabel* lblDeviceGone_;
    QLabel* lblSoundBank_;
    QLabel* lblAudioOutput_;
    QLabel* lblSoundTrouble_;
    QPushButton* cmdSoundBank_;
    QPushButton* cmdTestSound_;
    std::array<QRadioButton*, 3> realtimeModes_; // by RealtimeMode
    QLabel* colorsLabel_;
    ListBox* lstColors_;
    QCheckBox* chkEyeBall_;
    QCheckBox* chkTABOUT_;
    QCheckBox* chkStats_;
    QCheckBox* chkSplash_;
    QCheckBox* Check1_;
    QCheckBox* Check2_;
    QLabel* languagesLabel_;
    ListBox* lstLanguages_;
};

} // namespace tabrova

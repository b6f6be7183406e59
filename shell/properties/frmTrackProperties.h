// `frmTrackProperties`: name, instrument, tuning and volume of the current track.
#pragma once

#include "shell/properties/properties_host.h"

#include <QDialog>

#include <filesystem>

class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace tabrova {

class frmTrackProperties : public QDialog {
  public:
    frmTrackProperties(PropertiesHost& host, const std::filesystem::path& programFolder, QWidget* parent);

    void Form_Load();
    // The instrument's and the strings' names are read again.
    void showPatch();
    void showTuning();

  private:
    void buildControls();
    void tVolume_Change(int volume);
    void connectControls();
    // Title, and which controls there are: a percussion track has neither tuning nor instrument.
    void showKindOfTrack();
    void Command9_Click();

    PropertiesHost& host_;
    std::filesystem::path programFolder_;
    QString titleWords_;
    QString patchWord_;
    QLineEdit* txtTrackName_;
    QLabel* Label6_;
    QLabel* lblTuning_;
    QLabel* lblPatchDisplay_;
    QLabel* lblVolume_;
    QSlider* tVolume_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
    QPushButton* Command9_;
};

} // namespace tabrova

// `frmTrackProperties`: name, instrument, tuning and volume of the current track.
#pragma once

#include "workbench/tool_window.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

namespace tabrova {

class frmTrackProperties : public ToolWindow, private ActObserver {
  public:
    frmTrackProperties(const ToolContext& context, QWidget* parent);
    ~frmTrackProperties() override;

    void Form_Load() override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    // The instrument's and the strings' names are read again when they have changed.
    void actEnded(std::string_view act, const Changes& changes) override;
    void showPatch();
    void showTuning();
    void buildControls();
    void tVolume_Change(int volume);
    void connectControls();
    // Title, and which controls there are: a percussion track has neither tuning nor instrument.
    void showKindOfTrack();
    void Command9_Click();

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

// `frmMIDIExport`: chooses a file and queues up to 15 tracks for it.
#pragma once

#include "organisers/midi_export/export_queue.h"
#include "workbench/tool_window.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace tabrova {

class ListBox;
class PictureButton;

class frmMIDIExport : public ToolWindow {
  public:
    frmMIDIExport(const ToolContext& context, QWidget* parent);

    void Form_Load() override;
    void Form_Opened(const ToolOpener::Opening& opening) override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    void buildControls();
    QLayout* buildLists();
    QLayout* buildPriority();
    void connectControls();
    void fillTracks();
    void showQueue();

    void Command1_Click();
    void Command2_Click();
    void Command6_Click();
    void Command7_Click();
    void changePriority(int (*change)(int priority, int tracks));

    ExportQueue queue_;
    QString CommonDialog1_; // the chosen file's name
    QString noNameText_;    // what `Label1` says at first
    QString noFileText_;
    QString exportedText_;
    QLabel* Label1_;
    ListBox* lstTracks_;
    ListBox* lsttoUse_;
    QLineEdit* PriorityTrack_;
    QCheckBox* chkReverb_;
    QProgressBar* ProgressBar1_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
    PictureButton* Command4_;
    PictureButton* Command5_;
    PictureButton* Command6_;
    PictureButton* Command7_;
};

} // namespace tabrova

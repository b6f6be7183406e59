// `frmScaleWizard`, the scale manager: a scale in a key on the neck and as tablature that can be heard, and
// scale types of the user's own.
#pragma once

#include "platform/window_timer.h"
#include "tools/scale_manager/scale_calculator.h"
#include "workbench/tool_window.h"

class QLabel;
class QPushButton;

namespace tabrova {

class FolderList;
class ListBox;
class NewScalePanel;
class ScaleNeck;
class ScaleTab;

class frmScaleWizard : public ToolWindow {
  public:
    frmScaleWizard(const ToolContext& context, QWidget* parent);

    void Form_Load() override;

  private:
    QWidget* buildChoice();
    QWidget* buildScale();
    void connectControls();

    void ShowScale();
    void LayScale(int shift);
    void ClearScaleDisplay() { showDisplay({}); }
    void showDisplay(const ScaleDisplay& display);
    void playNote(std::size_t string, const QString& fret);
    void switchView();
    void SaveNewScale();
    // False if the file cannot be written.
    bool WriteScaleFile(const QString& name, std::string_view line);
    void deleteScale();
    std::filesystem::path folder() const { return programFolder() / "scales"; }
    std::filesystem::path ScaleFile() const; // of the chosen entry

    WindowTimer tmrscaleStopper_;
    std::string txt_scale; // the scale that was read last
    NeckView view_ = NeckView::RightHanded;

    ListBox* ScKey_;
    FolderList* scType_;
    QPushButton* Command2_;
    QLabel* lblTitle_;
    ScaleNeck* picMarkers_;
    QPushButton* Command3_;
    ScaleTab* Picture2_;
    NewScalePanel* creator_;
};

} // namespace tabrova

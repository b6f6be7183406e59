// `frmFileProperties`: the document's title, author, speed, notes and reverberation. It takes them from the
// document when it loads and writes them back when it unloads, however it is closed. While it is loaded
// playback reads its `chkSpeedBoost`, not the document's field.
#pragma once

#include "workbench/tool_window.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace tabrova {

class NotesBox;

class frmFileProperties : public ToolWindow {
  public:
    frmFileProperties(const ToolContext& context, QWidget* parent);

    void Form_Load() override;
    // Playback has loaded it perhaps, when another language was the active one.
    void Form_Opened(const ToolOpener::Opening& opening) override;
    // Texts that the user has not touched stay as they are, whatever the boxes can show.
    void Form_Unload() override;

  protected:
    void done(int result) override;

  private:
    void build();
    void showQuarters();

    QLineEdit* txtTitle_;
    QLineEdit* txtAuthor_;
    QSlider* sldSpeed_;
    QSpinBox* spnSpeed_;
    QCheckBox* chkSpeedBoost_;
    QLabel* lblQuarters_; // the quarter notes of a minute
    NotesBox* txtNotes_;
    QCheckBox* chkReverb_;
    QPushButton* Command1_;
    // As shown at the load, and what stands behind the shown part of the notes.
    QString title_, author_, notes_;
    std::string notesRest_;
};

} // namespace tabrova

// `frmFileProperties`: the document's title, author, speed, notes and reverberation. It takes them from the
// document when it loads and writes them back when it unloads, however it is closed. While it is loaded
// playback reads its `chkSpeedBoost`, not the document's field.
#pragma once

#include "core/shell/properties/properties_host.h"

#include <QDialog>

#include <filesystem>

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace tabrova {

class frmFileProperties : public QDialog {
  public:
    frmFileProperties(PropertiesHost& host, const std::filesystem::path& programFolder, QWidget* parent);

    void Form_Load();
    // What the user has not touched keeps the document's value, also one that the control cannot show.
    void Form_Unload();
    bool speedBoost() const;

  protected:
    void showEvent(QShowEvent* event) override;
    void done(int result) override;

  private:
    void build();
    void keepNotesShort();

    PropertiesHost& host_;
    std::filesystem::path programFolder_;
    QLineEdit* txtTitle_;
    QLineEdit* txtAuthor_;
    QSlider* sldSpeed_;
    QSpinBox* spnSpeed_;
    QCheckBox* chkSpeedBoost_;
    QPlainTextEdit* txtNotes_;
    QCheckBox* chkReverb_;
    QPushButton* Command1_;
    // As shown at the load.
    QString title_, author_, notes_;
    int speed_ = 0;
    bool reverb_ = false;
};

} // namespace tabrova

#include "tools/drum_machine/frmDrumMachine.h"

#include "core/text/conversions.h"
#include "forms/text_edges.h"
#include "platform/paths.h"
#include "tools/drum_machine/drum_rows.h"
#include "tools/drum_machine/pattern_strip.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

namespace tabrova {

void frmDrumMachine::LoadLanguage() {
    ToolWindow::LoadLanguage();
    setTitleOf(*this, "Tabrova - " + titleOf(*this));
}

void frmDrumMachine::takeMessage(std::string_view name, const QString& text) {
    words_[std::string(name)] = text;
}

void frmDrumMachine::Form_Load() {
    LoadLanguage();
    const auto caption = [this](const char* label) { return findChild<QLabel*>(label)->text(); };
    rows_->setWords(caption("lblInstrument"), caption("lblVolume"));
    picPatterns_->setWord(words_["stepsSet"]);
    showRows();
    showPattern();
    showPlayer();
    resize(sizeHint());
}

void frmDrumMachine::Form_Unload() { machine_.leave(); }

void frmDrumMachine::keyPressEvent(QKeyEvent* event) {
    const int patterns = event->key() == Qt::Key_PageDown ? 1 : event->key() == Qt::Key_PageUp ? -1 : 0;
    if (patterns == 0) return ToolWindow::keyPressEvent(event);
    if (sldPattern_->isEnabled()) sldPattern_->setValue(sldPattern_->value() + patterns);
}

// What is no number leaves the slider alone.
void frmDrumMachine::Text1_Change() {
    if (const auto pattern = toInteger32(Text1_->text().toStdString())) sldPattern_->setValue(*pattern);
}

void frmDrumMachine::saveSong() {
    if (const auto chosen = services().files.choose({FileQuestion::Kind::Save, "", "", ""}))
        machine_.save(pathOf(*chosen));
}

void frmDrumMachine::openSong() {
    if (const auto chosen = services().files.choose({FileQuestion::Kind::Open, "", "", ""}))
        machine_.open(pathOf(*chosen));
}

void frmDrumMachine::showChange(DrumMachine::Change change) {
    switch (change) {
    case DrumMachine::Change::Steps:
        showPattern();
        break;
    case DrumMachine::Change::Place:
        showPlace();
        break;
    case DrumMachine::Change::Player:
        showPlayer();
        break;
    case DrumMachine::Change::Rows:
        showRows();
        break;
    }
}

void frmDrumMachine::showPattern() {
    for (int row = 0; row < DrumRows; ++row)
        for (int step = 0; step < PatternSteps; ++step)
            rows_->showStep(row, step, machine_.isShown(row, step));
    Text1_->setText(QString::number(machine_.pattern()));
    picPatterns_->showChosen(machine_.pattern());
    for (int pattern = 0; pattern < SongPatterns; ++pattern)
        showSteps(pattern);
}

void frmDrumMachine::showSteps(int pattern) {
    const int set = machine_.song.stepsOfPattern(pattern);
    picPatterns_->showSteps(pattern, set);
    if (pattern == machine_.pattern()) lblSteps_->setText(words_["stepsSet"] + " " + QString::number(set));
}

void frmDrumMachine::pressStep(int row, int step) {
    machine_.pressStep(row, step);
    rows_->showStep(row, step, machine_.isShown(row, step));
    showSteps(machine_.pattern());
}

void frmDrumMachine::showRows() {
    for (int row = 0; row < DrumRows; ++row) {
        const DrumRow& shown = machine_.song.rows[static_cast<std::size_t>(row)];
        rows_->showRow(row, shown.drum, shown.volume);
    }
    sldSpeed_->setValue(machine_.song.speed);
    for (int pattern = 0; pattern < SongPatterns; ++pattern)
        showSteps(pattern);
}

void frmDrumMachine::showPlayer() {
    Command1_->setText(words_[machine_.playing() ? "stop" : "play"]);
    const bool enabled = !machine_.locked();
    for (QWidget* control : std::initializer_list<QWidget*>{Command2_, Command3_, chkPlayAll_, sldPattern_})
        control->setEnabled(enabled);
    rows_->setRowsEnabled(enabled);
    showPlace();
}

// The step is marked while its pattern is shown.
void frmDrumMachine::showPlace() {
    const int sounding = machine_.soundingPosition();
    const int pattern = sounding < 0 ? -1 : sounding / PatternSteps;
    rows_->showSounding(pattern == machine_.pattern() && pattern >= 0 ? sounding % PatternSteps : -1);
    picPatterns_->showSounding(pattern);
}

} // namespace tabrova

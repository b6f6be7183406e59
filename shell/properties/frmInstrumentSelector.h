// `frmInstrumentSelector`: the General MIDI instruments, one of which the current track plays with. It is
// made at the start with the list from `genmidi.txt`, and only hidden afterwards; each opening loads it anew.
#pragma once

#include "platform/list_box.h"
#include "platform/services.h"
#include "shell/properties/properties_host.h"

#include <QDialog>

class QPushButton;

namespace tabrova {

class frmInstrumentSelector : public QDialog {
  public:
    frmInstrumentSelector(Services& services, PropertiesHost& host, QWidget* parent);

    // Reads `genmidi.txt` of the program's folder: one name a line, the line number from 0 being the program.
    // Without the file the list stays empty.
    void fill_sound_list();
    void Form_Load();
    // Shows this program as the chosen one, or none. Nothing is stored.
    void showProgram(std::optional<int> program);
    // "" for a program that the list does not have.
    QString instrumentName(int program) const;

    std::function<void()> closed;

  protected:
    void done(int result) override;

  private:
    void lst_Instrument_Click();
    void sample();
    void accept() override;

    Services& services_;
    PropertiesHost& host_;
    ListBox* lst_Instrument_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    WindowTimer* tmrNoteStopper_;
};

} // namespace tabrova

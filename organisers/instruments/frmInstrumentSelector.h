// `frmInstrumentSelector`: the General MIDI instruments, one of which the current track plays with. It is
// loaded at the start and only hidden afterwards; its list follows the current track.
#pragma once

#include "platform/list_box.h"
#include "workbench/tool_window.h"

class QPushButton;

namespace tabrova {

class frmInstrumentSelector : public ToolWindow, private ActObserver {
  public:
    frmInstrumentSelector(const ToolContext& context, QWidget* parent);
    ~frmInstrumentSelector() override;

    void Form_Load() override;
    void Form_Opened(const ToolOpener::Opening& opening) override;

  protected:
    void done(int result) override;

  private:
    void actEnded(std::string_view act, const Changes& changes) override;
    // Shows the current track's program as the chosen one, or none. Nothing is stored.
    void showProgram();
    void lst_Instrument_Click();
    void sample();
    void accept() override;

    ListBox* lst_Instrument_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    WindowTimer* tmrNoteStopper_;
};

} // namespace tabrova

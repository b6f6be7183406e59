// `frmAbout`: the version, the credits and the way to the system information tool.
#pragma once

#include "workbench/tool_window.h"

class QGridLayout;
class QLabel;

namespace tabrova {

class frmAbout : public ToolWindow {
  public:
    frmAbout(const ToolContext& context, QWidget* parent);

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    void addTexts(QGridLayout& grid);
    void openAuthorsPage();
    void startSystemInformationTool();

    QLabel* sequencer_;
};

} // namespace tabrova

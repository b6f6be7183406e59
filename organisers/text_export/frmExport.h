// `frmExport`: the current track as text, to be altered, saved and printed.
#pragma once

#include "workbench/tool_window.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace tabrova {

class CodePageBox;

class frmExport : public ToolWindow {
  public:
    frmExport(const ToolContext& context, QWidget* parent);

    void Form_Load() override;

  private:
    void Command1_Click();
    void Command3_Click();

    QString CommonDialog2_; // the chosen file's name
    QLabel* Label1_;
    CodePageBox* txtfile_;
    QLineEdit* txtNewLine_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
};

} // namespace tabrova

// `frmChordTypeCreator`: a new chord type by its name and its intervals. What it has put together goes to the
// chord manager that opened it.
#pragma once

#include "tools/chord_manager/chord_tables.h"
#include "workbench/tool_window.h"

#include <QPointer>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace tabrova {

class frmChordWizard;

class frmChordTypeCreator : public ToolWindow {
  public:
    frmChordTypeCreator(const ToolContext& context, QWidget* parent);

    void Form_Opened(const ToolOpener::Opening& opening) override;

  private:
    void Command1_Click();
    // Short if a box is greyed: such a box adds nothing.
    std::string pattern() const;

    QPointer<QWidget> opener_;
    QLineEdit* txtName_;
    std::array<QCheckBox*, ChordIntervals> cCheck_;
    QPushButton* Command1_;
    QPushButton* Command2_;
};

} // namespace tabrova

// `frmHelp`, the built-in help: a drop-down list of questions, and the answer on a sheet below it; on a page
// of its own all keys of the main window.
#pragma once

#include "workbench/tool_window.h"

class QLabel;
class QPushButton;
class QTreeWidget;

namespace tabrova {

class TopicList;

class frmHelp : public ToolWindow {
  public:
    frmHelp(const ToolContext& context, QWidget* parent);

    void Form_Opened(const ToolOpener::Opening& opening) override;

  private:
    QWidget* buildSheet();
    void showTopic(int row);
    void showKeys();
    void fillKeys();

    TopicList* lstTopics_;
    QLabel* lblTitle_;
    QLabel* lblHelp_;
    QPushButton* cmdKeys_;
    QTreeWidget* lstKeys_;
};

} // namespace tabrova

// `frmHelp`, the built-in help: a drop-down list of questions, and the answer on a sheet below it.
#pragma once

#include "workbench/tool_window.h"

class QLabel;

namespace tabrova {

class TopicList;

class frmHelp : public ToolWindow {
  public:
    frmHelp(const ToolContext& context, QWidget* parent);

  private:
    QWidget* buildSheet();
    void showTopic(int row);

    TopicList* lstTopics_;
    QLabel* lblTitle_;
    QLabel* lblHelp_;
};

} // namespace tabrova

// A hollow rectangle that marks the chosen cell of a panel. The mouse does not see it.
#pragma once

#include <QWidget>

namespace tabrova {

class HighlightShape : public QWidget {
  public:
    HighlightShape(const char* name, QWidget* panel);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tabrova

// The mark of the push button that has the focus, inside its edge: the edge alone may look the same on the
// default button, which has it always.
#pragma once

#include <QObject>

class QPushButton;

namespace tabrova {

class FocusMark : public QObject {
  public:
    using QObject::QObject;

    // As long as the mark lives. A button may be told of twice.
    void addTo(QPushButton& button);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tabrova

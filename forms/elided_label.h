// A label in one line that shows as much of its text as there is room for, with dots in place of the rest.
#pragma once

#include <QLabel>

namespace tabrova {

class ElidedLabel : public QLabel {
  public:
    // `elide` tells which side of the text gives way.
    ElidedLabel(const QString& name, Qt::TextElideMode elide, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode elide_;
};

} // namespace tabrova

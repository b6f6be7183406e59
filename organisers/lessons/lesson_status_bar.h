// `StatusBar1` of the lesson viewer: a strip along the lower edge that brings the list of lessons back. It is
// a button: a click, Space and Return press it.
#pragma once

#include <QAbstractButton>

namespace tabrova {

class LessonStatusBar : public QAbstractButton {
  public:
    LessonStatusBar(const QString& name, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tabrova

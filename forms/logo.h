// `imgLogo`, the program's logo as the windows show it: six strings and the name, in the theme's colors.
#pragma once

#include <QWidget>

namespace tabrova {

class Logo : public QWidget {
  public:
    explicit Logo(QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tabrova

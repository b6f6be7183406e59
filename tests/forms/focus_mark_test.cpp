// A push button shows that it has the focus, be it the default one, whose edge is marked always.
#include "tests/forms/demo_form.h"

#include <QLineEdit>
#include <QPushButton>

namespace tabrova::testing {
namespace {

class FocusMarks : public FormTest {
  protected:
    // The button's middle, without its edge.
    static QImage inside(QPushButton& button) {
        QApplication::processEvents();
        return button.grab(button.rect().adjusted(3, 3, -3, -3)).toImage();
    }
    static void expectMark(QPushButton& button, QWidget& other) {
        other.setFocus();
        const QImage without = inside(button);
        button.setFocus(Qt::TabFocusReason);
        const QImage with = inside(button);
        EXPECT_TRUE(with != without) << button.objectName().toStdString();
        other.setFocus();
        EXPECT_TRUE(inside(button) == without) << button.objectName().toStdString();
    }
};

TEST_F(FocusMarks, StandInTheButtonThatHasTheFocusAndInNoOther) {
    DemoForm form(folder());
    auto& line = *form.add<QLineEdit>("line");
    auto& plain = *form.add<QPushButton>("plain");
    auto& first = *form.add<QPushButton>("default");
    first.setDefault(true);
    form.present();
    expectMark(plain, line);
    expectMark(first, line);
    expectMark(first, plain);
}

} // namespace
} // namespace tabrova::testing

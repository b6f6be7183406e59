// Where the focus stands on a form when it is shown, and that it is seen there.
#include "forms/tab_order.h"
#include "platform/list_box.h"
#include "tests/forms/demo_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>

namespace tabrova {
namespace {

using testing::DemoForm;

class FormFocus : public testing::FormTest {
  protected:
    DemoForm form{folder()};
};

TEST_F(FormFocus, IsOnTheFirstControlInReadingOrderAtEachShow) {
    form.add<QPushButton>("b");
    form.column->insertWidget(0, named(new QPushButton(&form), "a"));
    form.present();
    EXPECT_EQ(form.focus(), "a");
    form.press(Qt::Key_Tab);
    EXPECT_EQ(form.focus(), "b");
    form.hide();
    form.present();
    EXPECT_EQ(form.focus(), "a");
}

TEST_F(FormFocus, PassesOverWhatCannotHaveIt) {
    form.add<QLabel>("label");
    form.add<QPushButton>("disabled")->setEnabled(false);
    form.add<QPushButton>("hidden")->hide();
    form.add<QPushButton>("clicked only")->setFocusPolicy(Qt::ClickFocus);
    form.add<QPushButton>("none")->setFocusPolicy(Qt::NoFocus);
    form.add<QPushButton>("first");
    form.present();
    EXPECT_EQ(form.focus(), "first");
    EXPECT_EQ(firstTabStop(form)->objectName(), "first");
}

TEST_F(FormFocus, IsOnTheControlThatTheFormNamed) {
    form.add<QPushButton>("first");
    auto* second = form.add<QLineEdit>("second");
    auto* third = form.add<QPushButton>("third");
    second->setText("words");
    form.setFirstFocus(second);
    form.present();
    EXPECT_EQ(form.focus(), "second");
    EXPECT_EQ(second->selectedText(), "words");
    for (const auto& take : {std::function<void(bool)>([second](bool away) { second->setDisabled(away); }),
                             std::function<void(bool)>([second](bool away) { second->setHidden(away); })}) {
        third->setFocus();
        form.hide();
        take(true);
        form.present();
        EXPECT_EQ(form.focus(), "first");
        take(false);
    }
    delete second;
    form.hide();
    form.present();
    EXPECT_EQ(form.focus(), "first");
}

TEST_F(FormFocus, MayBeOnTheFormItself) {
    form.add<QPushButton>("first");
    form.setFocusPolicy(Qt::StrongFocus);
    form.setFirstFocus(&form);
    form.present();
    EXPECT_EQ(form.focusWidget(), &form);
    EXPECT_EQ(form.walk(Qt::Key_Tab, 1), QStringList{"first"});
}

TEST_F(FormFocus, SelectsTheTextOfALineAtTheShowAndAtTab) {
    auto* first = form.add<QLineEdit>("first");
    auto* second = form.add<QLineEdit>("second");
    first->setText("one");
    second->setText("two");
    form.show();
    EXPECT_EQ(first->selectedText(), "one"); // before the desktop activates it
    form.present();
    EXPECT_EQ(first->selectedText(), "one");
    form.press(Qt::Key_Tab);
    EXPECT_EQ(second->selectedText(), "two");
    form.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(first->selectedText(), "one");
}

TEST_F(FormFocus, StaysWhereItIsWhenTheFormComesBackFromTheTaskBar) {
    form.add<QPushButton>("first");
    form.add<QPushButton>("second");
    form.present();
    form.press(Qt::Key_Tab);
    QShowEvent back;
    QSpontaneKeyEvent::setSpontaneous(&back);
    qApp->notify(&form, &back);
    EXPECT_EQ(form.focus(), "second");
}

TEST_F(FormFocus, AFormWithoutControlsIsShown) {
    form.present();
    EXPECT_EQ(firstTabStop(form), nullptr);
    form.press(Qt::Key_Tab);
    EXPECT_TRUE(form.isVisible());
}

// The focus mark

class ListOf : public ListBox {
  public:
    explicit ListOf(QWidget* parent) : ListBox("list", parent) {}
};

template <class Control>
void expectMark(const std::filesystem::path& folder, const char* kind,
                std::function<void(Control&)> fill = {}) {
    DemoForm form(folder);
    auto* control = form.add<Control>("control");
    auto* other = form.add<QPushButton>("other");
    if (fill) fill(*control);
    form.present();
    EXPECT_TRUE(control->hasFocus()) << kind;
    const QImage with = control->grab().toImage();
    other->setFocus();
    EXPECT_TRUE(control->grab().toImage() != with) << kind;
}

TEST_F(FormFocus, IsSeenOnEveryKindOfControlAsSoonAsTheFormIsShown) {
    expectMark<QPushButton>(folder(), "button");
    expectMark<QToolButton>(folder(), "tool button");
    expectMark<QCheckBox>(folder(), "check box", [](QCheckBox& box) { box.setText("words"); });
    expectMark<QRadioButton>(folder(), "radio button", [](QRadioButton& box) { box.setText("words"); });
    expectMark<QLineEdit>(folder(), "line", [](QLineEdit& line) { line.setText(""); });
    expectMark<QPlainTextEdit>(folder(), "text");
    expectMark<QSpinBox>(folder(), "number");
    expectMark<QSlider>(folder(), "slider", [](QSlider& slider) { slider.setOrientation(Qt::Horizontal); });
    expectMark<QComboBox>(folder(), "combo box");
    expectMark<QTabBar>(folder(), "tabs", [](QTabBar& tabs) { tabs.addTab("words"); });
    expectMark<ListOf>(folder(), "list", [](ListOf& list) { list.addItems({"a", "b"}); });
    expectMark<ListOf>(folder(), "empty list");
    expectMark<QGroupBox>(folder(), "group", [](QGroupBox& box) {
        box.setTitle("words");
        box.setCheckable(true);
    });
}

} // namespace
} // namespace tabrova

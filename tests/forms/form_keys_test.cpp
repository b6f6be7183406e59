// What Return and Escape do on every form, wherever the focus is.
#include "platform/list_box.h"
#include "tests/forms/counting_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>

namespace tabrova {
namespace {

using testing::DemoForm;

using FormKeys = testing::CountingFormTest;

template <class Control>
void expectEscapeCloses(const std::filesystem::path& folder, const char* kind) {
    DemoForm form(folder);
    auto* control = form.add<Control>("control");
    form.present();
    ASSERT_EQ(form.focus(), "control") << kind;
    ASSERT_TRUE(control->hasFocus()) << kind;
    form.press(Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible()) << kind;
}

TEST_F(FormKeys, AreClosedByEscapeWhereverTheFocusIs) {
    expectEscapeCloses<QPushButton>(folder(), "button");
    expectEscapeCloses<QToolButton>(folder(), "tool button");
    expectEscapeCloses<QCheckBox>(folder(), "check box");
    expectEscapeCloses<QRadioButton>(folder(), "radio button");
    expectEscapeCloses<QLineEdit>(folder(), "line");
    expectEscapeCloses<QPlainTextEdit>(folder(), "text");
    expectEscapeCloses<QSpinBox>(folder(), "number");
    expectEscapeCloses<QSlider>(folder(), "slider");
    expectEscapeCloses<QComboBox>(folder(), "combo box");
    for (const auto keyClick : {ListBox::KeyClick::AtMove, ListBox::KeyClick::AtEnter}) {
        make();
        auto* list = new ListBox("lst", form.get(), keyClick);
        list->addItems({"a", "b"});
        list->setCurrentRow(0);
        list->DoubleClick = [] {};
        form->column->addWidget(list);
        form->present();
        ASSERT_TRUE(list->hasFocus());
        form->press(Qt::Key_Escape);
        EXPECT_FALSE(form->isVisible());
    }
    make();
    picture("picture");
    form->present();
    form->press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    make().present(); // no control at all
    form->press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FormKeys, AreNotClosedByAnEscapeThatIsHeldDownFromBefore) {
    make().present();
    form->hold(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FormKeys, AreClosedByEscapeAndNoOtherKey) {
    make().present();
    for (const auto key :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Q, Qt::Key_F4, Qt::Key_Delete})
        form->press(key);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(closings, 0);
}

TEST_F(FormKeys, ReturnAndEnterPressTheButtonThatHasTheFocus) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        pressed.clear();
        make();
        QList<QWidget*> buttons = {button<QPushButton>("push"), button<QToolButton>("tool"),
                                   picture("picture")};
        button<QPushButton>("default")->setDefault(true);
        form->present();
        for (QWidget* one : buttons) {
            one->setFocus();
            form->press(key, key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        }
        EXPECT_EQ(pressed, (QStringList{"push", "tool", "picture"}));
    }
}

TEST_F(FormKeys, ReturnThatIsSentToAButtonPressesItWhereverTheFocusIs) {
    make();
    button<QPushButton>("first");
    auto* other = button<QPushButton>("other");
    form->present();
    QTest::keyClick(other, Qt::Key_Return);
    EXPECT_EQ(form->focus(), "first");
    EXPECT_EQ(pressed, QStringList{"other"});
}

TEST_F(FormKeys, ReturnPressesTheFocusedButtonOnceAlsoIfItIsTheDefaultOne) {
    make();
    button<QPushButton>("default")->setDefault(true);
    form->present();
    form->press(Qt::Key_Return);
    EXPECT_EQ(pressed, QStringList{"default"});
}

TEST_F(FormKeys, ReturnElsewherePressesTheDefaultButton) {
    make();
    const QList<QWidget*> others = {form->add<QLineEdit>("line"),   form->add<QSpinBox>("number"),
                                    form->add<QSlider>("slider"),   button<QCheckBox>("check"),
                                    button<QRadioButton>("choice"), form->add<QComboBox>("combo"),
                                    form->add<QTabWidget>("tabs")};
    form->column->addWidget(new ListBox("list", form.get()));
    button<QPushButton>("other");
    button<QPushButton>("default")->setDefault(true);
    form->present();
    for (QWidget* control : others + QList<QWidget*>{form->findChild<QWidget*>("list"), form.get()}) {
        pressed.clear();
        if (control == form.get()) {
            form->focusWidget()->clearFocus();
        } else {
            control->setFocus();
        }
        form->press(Qt::Key_Return);
        EXPECT_EQ(pressed, QStringList{"default"}) << control->objectName().toStdString();
    }
}

// As controls do on some desktops.
template <class Control>
class UsesReturn : public Control {
  public:
    using Control::Control;
    int used = 0;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return) ++used;
    }
};

TEST_F(FormKeys, ReturnIsTheFormsWhateverIsTheHabitOfTheDesktop) {
    make();
    auto* push = button<UsesReturn<QPushButton>>("push");
    auto* tool = button<UsesReturn<QToolButton>>("tool");
    auto* check = button<UsesReturn<QCheckBox>>("check");
    auto* choice = button<UsesReturn<QRadioButton>>("choice");
    auto* combo = form->add<UsesReturn<QComboBox>>("combo");
    button<QPushButton>("default")->setDefault(true);
    form->present();
    for (QWidget* control : QList<QWidget*>{push, tool, check, choice, combo}) {
        control->setFocus();
        form->press(Qt::Key_Return);
        form->press(Qt::Key_Return, Qt::ControlModifier);
        form->hold(Qt::Key_Return);
    }
    EXPECT_EQ(pressed, (QStringList{"push", "tool", "default", "default", "default"}));
    EXPECT_EQ(push->used + tool->used + check->used + choice->used + combo->used, 0);
    auto* typed = form->add<UsesReturn<QComboBox>>("typed");
    typed->setEditable(true);
    form->hide();
    form->present();
    typed->setFocus();
    form->press(Qt::Key_Return);
    EXPECT_EQ(typed->used, 1);
}

TEST_F(FormKeys, ReturnElsewhereDoesNothingWithoutADefaultButton) {
    make();
    form->add<QLineEdit>("line");
    button<QPushButton>("first");
    button<QPushButton>("second");
    form->present();
    EXPECT_EQ(form->focus(), "line");
    form->press(Qt::Key_Return);
    form->press(Qt::Key_Tab);
    EXPECT_EQ(form->focus(), "first");
    form->press(Qt::Key_Backtab, Qt::ShiftModifier);
    form->press(Qt::Key_Return);
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FormKeys, NoButtonBecomesTheDefaultOneByItself) {
    make();
    form->add<QLineEdit>("line");
    auto* first = button<QPushButton>("first");
    auto* second = button<QPushButton>("second");
    form->present();
    second->setFocus();
    EXPECT_FALSE(first->isDefault() || first->autoDefault());
    EXPECT_FALSE(second->isDefault() || second->autoDefault());
}

TEST_F(FormKeys, ADefaultButtonThatCannotBePressedIsNotPressed) {
    make();
    form->add<QLineEdit>("line");
    auto* fallback = button<QPushButton>("default");
    fallback->setDefault(true);
    form->present();
    fallback->setEnabled(false);
    form->press(Qt::Key_Return);
    fallback->setEnabled(true);
    fallback->hide();
    form->press(Qt::Key_Return);
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(FormKeys, TheDefaultButtonOfAnotherWindowIsNotPressed) {
    make();
    form->add<QLineEdit>("line");
    DemoForm child(folder(), "frmChild", form.get());
    auto* other = child.add<QPushButton>("other");
    other->setDefault(true);
    QObject::connect(other, &QPushButton::clicked, other, [this] { pressed.append("other"); });
    child.present();
    form->present();
    form->press(Qt::Key_Return);
    EXPECT_TRUE(pressed.isEmpty());
    child.present();
    child.press(Qt::Key_Return);
    EXPECT_EQ(pressed, QStringList{"other"});
}

TEST_F(FormKeys, LeaveTheButtonsOfTheirBoxesAlone) {
    make();
    QMessageBox box(form.get());
    const QPushButton* answer = box.addButton(QMessageBox::Ok);
    form->present();
    EXPECT_TRUE(answer->autoDefault());
}

TEST_F(FormKeys, AReturnThatIsHeldDownFromBeforePressesNothing) {
    make();
    const QList<QWidget*> controls = {button<QPushButton>("push"), button<QToolButton>("tool"),
                                      picture("picture"), form->add<QLineEdit>("line"),
                                      button<QPushButton>("default")};
    qobject_cast<QPushButton*>(controls.last())->setDefault(true);
    form->present();
    for (QWidget* control : controls)
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            control->setFocus();
            form->hold(key);
        }
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(FormKeys, ReturnWithControlOrAltPressesNothing) {
    make();
    form->add<QLineEdit>("line");
    button<QPushButton>("default")->setDefault(true);
    form->present();
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier, Qt::MetaModifier})
        form->press(Qt::Key_Return, modifier);
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(FormKeys, KeysThatAFormDoesNotKnowGoOn) {
    make().present();
    for (const auto key : {Qt::Key_A, Qt::Key_F1, Qt::Key_Return, Qt::Key_Escape}) {
        QKeyEvent event(QEvent::KeyPress, key, key == Qt::Key_Return ? Qt::ControlModifier : Qt::NoModifier);
        QApplication::sendEvent(form.get(), &event);
        EXPECT_EQ(event.isAccepted(), key == Qt::Key_Escape) << key;
    }
}

TEST_F(FormKeys, AControlThatUsesReturnItselfKeepsIt) {
    make();
    auto* list = new ListBox("list", form.get());
    list->addItems({"a", "b"});
    list->setCurrentRow(1);
    int doubles = 0;
    list->DoubleClick = [&doubles] { ++doubles; };
    form->column->addWidget(list);
    auto* text = form->add<QPlainTextEdit>("text");
    button<QPushButton>("default")->setDefault(true);
    form->present();
    list->setFocus();
    form->press(Qt::Key_Return);
    EXPECT_EQ(doubles, 1);
    text->setFocus();
    form->press(Qt::Key_Return);
    EXPECT_EQ(text->toPlainText(), "\n");
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(FormKeys, SpacePressesAButtonOnce) {
    make();
    button<QPushButton>("push");
    form->present();
    form->press(Qt::Key_Space);
    EXPECT_EQ(pressed, QStringList{"push"});
}

TEST_F(FormKeys, AButtonThatClosesItsFormIsPressedAndTheFormSaysItOnce) {
    make();
    auto* done = button<QPushButton>("done");
    QObject::connect(done, &QPushButton::clicked, form.get(), [this] { form->close(); });
    form->present();
    form->press(Qt::Key_Return);
    EXPECT_EQ(pressed, QStringList{"done"});
    EXPECT_EQ(closings, 1);
}

} // namespace
} // namespace tabrova

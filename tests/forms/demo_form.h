// A form of the tests' own: a window with a layout to put controls into, and the keys of a real keyboard.
#pragma once

#include "forms/form.h"
#include "forms/named.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tabrova::testing {

class DemoForm : public Form {
  public:
    explicit DemoForm(const std::filesystem::path& folder, const char* name = "frmDemo",
                      QWidget* parent = nullptr)
        : Form(name, folder, parent), column(new QVBoxLayout(this)) {}

    using Form::programFolder;
    using Form::setFirstFocus;

    template <class Control>
    Control* add(const QString& name, QLayout* to = nullptr) {
        auto* control = named(new Control(this), name);
        (to ? to : column)->addWidget(control);
        return control;
    }
    // Shows it and gives it the keyboard, as a desktop does.
    void present() {
        QApplication::processEvents(); // a hiding before
        show();
        activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(windowHandle(), key, modifiers);
    }
    // What a keyboard sends while the key is held down.
    void hold(Qt::Key key) {
        const QString text = key == Qt::Key_Escape ? "\x1b" : key == Qt::Key_Space ? " " : "\r";
        QTest::simulateEvent(windowHandle(), true, key, {}, text, true);
        QTest::simulateEvent(windowHandle(), false, key, {}, text, true);
    }
    QString focus() const { return focusWidget() ? focusWidget()->objectName() : "nothing"; }
    // Where `presses` of the key go, one after the other.
    QStringList walk(Qt::Key key, int presses) {
        QStringList names;
        for (int count = 0; count < presses; ++count) {
            press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            names.append(focus());
        }
        return names;
    }

    QVBoxLayout* column;
};

class FormTest : public ::testing::Test {
  protected:
    std::filesystem::path folder() const { return home.path().toStdString(); }

    QTemporaryDir home;
};

} // namespace tabrova::testing

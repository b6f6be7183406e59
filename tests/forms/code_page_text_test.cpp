// Text boxes whose text goes into a file refuse what the file cannot hold.
#include "forms/code_page_text.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(CodePageText, GoesThereAndBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
    EXPECT_EQ(fromCodePage("\x80\xB2").toStdString(), "€²");
}

class RestrictedBox : public ::testing::Test {
  protected:
    RestrictedBox() {
        restrictToCodePage(box, [] { return QString("A tablature file cannot hold this character."); });
        box.show();
        box.setFocus();
    }
    QLineEdit box;
};

TEST_F(RestrictedBox, TakesTheCodePagesCharacters) {
    for (const QChar character : QString::fromUtf8("Fantasía €"))
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character), Qt::NoModifier);
    EXPECT_EQ(box.text().toStdString(), "Fantasía €");
}

TEST_F(RestrictedBox, RefusesOthersAtTheKeyboardWithAHint) {
    QTest::keyClicks(&box, "ab");
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString::fromUtf8("中"), Qt::NoModifier);
    EXPECT_EQ(box.text().toStdString(), "ab");
    EXPECT_FALSE(QToolTip::text().isEmpty());
    QTest::keyClicks(&box, "c");
    EXPECT_EQ(box.text().toStdString(), "abc");
}

TEST_F(RestrictedBox, RefusesOthersOnPasteWithAHint) {
    QToolTip::hideText();
    QApplication::clipboard()->setText(QString::fromUtf8("x中y"));
    box.paste();
    EXPECT_EQ(box.text().toStdString(), "");
    EXPECT_FALSE(QToolTip::text().isEmpty());
    QApplication::clipboard()->setText("fine");
    box.paste();
    EXPECT_EQ(box.text().toStdString(), "fine");
}

TEST(CodePageText, WhatTheCodePageDoesNotHoldIsAQuestionMark) {
    EXPECT_EQ(toCodePage(QString::fromUtf8("a中b🎸c")), "a?b?c");
    EXPECT_EQ(toCodePage(""), "");
}

TEST_F(RestrictedBox, TakesControlCharactersAndLineEndsForBlanks) {
    const CodePageValidator validator(nullptr);
    int place = 0;
    for (int code = 0; code <= 0x80; ++code) {
        const bool control = code < 32 || code == 0x7F;
        QString text = QString("a") + QChar(code) + "b";
        const bool taken = validator.validate(text, place) == QValidator::Acceptable;
        EXPECT_EQ(taken, code != 0x80) << code;
        if (taken) {
            EXPECT_EQ(text, QString("a") + QChar(control ? ' ' : code) + "b") << code;
        }
    }
    QString lines = "a\r\nb\n\rc";
    EXPECT_EQ(validator.validate(lines, place), QValidator::Acceptable);
    EXPECT_EQ(lines, "a  b  c");
    QString foreign = QString::fromUtf8("a🎸");
    EXPECT_EQ(validator.validate(foreign, place), QValidator::Invalid);
}

QWidget* shownHint() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->inherits("QTipLabel") && widget->isVisible()) return widget;
    return nullptr;
}

TEST_F(RestrictedBox, HintsAtItsLowerLeftCorner) {
    const QString hint = "A tablature file cannot hold this character.";
    box.setGeometry(300, 200, 120, 30);
    QToolTip::showText(QPoint(0, 0), "another");
    QToolTip::showText(box.mapToGlobal(QPoint(0, 30)), hint, &box);
    ASSERT_NE(shownHint(), nullptr);
    const QPoint place = shownHint()->pos();
    QToolTip::showText(QPoint(0, 0), "another");
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString::fromUtf8("中"), Qt::NoModifier);
    EXPECT_EQ(QToolTip::text(), hint);
    ASSERT_NE(shownHint(), nullptr);
    EXPECT_EQ(shownHint()->pos(), place);
}

} // namespace
} // namespace tabrova

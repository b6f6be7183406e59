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

} // namespace
} // namespace tabrova

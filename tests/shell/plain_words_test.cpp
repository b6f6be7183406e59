// Whatever stands in a language file or a document is shown letter by letter: no word is taken for a page
// with pictures that would have to be loaded, and none is so long that it holds the windows up.
#include "core/text/code_page.h"
#include "forms/code_page_text.h"
#include "forms/plain_tool_tips.h"
#include "tests/shell/main_window.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <fstream>

namespace tabrova::testing {
namespace {

class PlainWords : public MainWindowTest {
  protected:
    // A word of every line asks for a picture, which a pipe would never give.
    void writeHostileLanguage() {
        std::ofstream file(folder() / "lang.trl", std::ios::trunc);
        for (int line = 1; line <= 600; ++line)
            file << "<img src=\"picture.png\"> & <b>word</b> " << line << '\n';
    }

    void openEverything() {
        load();
        for (const char* item :
             {"mnuToolsOptions", "mnuTrackProps", "mnuFileProperties", "mnuAbout", "mnuChoose"})
            trigger(item);
    }

    static QString shownText(const QString& text) {
        return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    }
    static QString hintOf(QWidget& widget) {
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, QPoint(3, 3), widget.mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(&widget, &help);
        return QToolTip::text();
    }
};

TEST_F(PlainWords, OfAHostileLanguageAreLabels) {
    writeHostileLanguage();
    openEverything();
    int labels = 0;
    for (QWidget* widget : QApplication::allWidgets()) {
        const auto* label = qobject_cast<QLabel*>(widget);
        if (!label || !label->text().contains("img")) continue;
        ++labels;
        const bool plain = label->textFormat() == Qt::PlainText || label->objectName() == "lblSequencer";
        EXPECT_TRUE(plain) << label->objectName().toStdString();
    }
    EXPECT_GT(labels, 15);
    // The one that is a link shows its word inside.
    const auto* link = control<QLabel>(*form("frmAbout"), "lblSequencer");
    EXPECT_TRUE(shownText(link->text()).contains("<img src=\"picture.png\"> & <b>word</b>"));
    EXPECT_TRUE(control<QLabel>(*window, "lbldebug")->text().contains("<img"));
}

TEST_F(PlainWords, OfAHostileLanguageAreHints) {
    writeHostileLanguage();
    openEverything();
    int hints = 0;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const QString hint = widget->toolTip();
        if (!hint.contains("img") || !widget->isVisible()) continue;
        ++hints;
        const QString shown = hintOf(*widget);
        EXPECT_FALSE(shown.contains("<img")) << widget->objectName().toStdString();
        EXPECT_EQ(shownText(shown), hint) << widget->objectName().toStdString();
    }
    EXPECT_GT(hints, 20);
}

TEST_F(PlainWords, OfTheWelcomeWindowAreItsLineAndItsHints) {
    writeHostileLanguage();
    window = std::make_unique<frmMain>(services);
    window->show();
    window->Form_Load({}, frmMain::Splash::AsSettingsSay);
    QWidget* splash = form("frmAltSplash");
    ASSERT_NE(splash, nullptr);
    auto* image = splash->findChild<QWidget*>("imgOptions(0)");
    EXPECT_EQ(shownText(hintOf(*image)), image->toolTip());
    EXPECT_TRUE(image->toolTip().contains("<img"));
    QTest::mouseMove(image);
    QEvent enter(QEvent::FocusIn);
    QApplication::sendEvent(image, &enter);
    const auto* line = control<QLabel>(*splash, "lblTooltip");
    EXPECT_EQ(line->text(), image->toolTip());
    EXPECT_EQ(line->textFormat(), Qt::PlainText);
}

TEST_F(PlainWords, ARefusedCharactersHintIsPlainToo) {
    writeHostileLanguage();
    openEverything();
    auto* notes = control<QPlainTextEdit>(*form("frmFileProperties"), "txtNotes");
    auto* title = control<QLineEdit>(*form("frmFileProperties"), "txtTitle");
    for (QWidget* box : {static_cast<QWidget*>(notes), static_cast<QWidget*>(title)}) {
        QToolTip::hideText();
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString::fromUtf8("Ж"), Qt::NoModifier);
        EXPECT_TRUE(shownText(QToolTip::text()).contains("<img src")) << box->objectName().toStdString();
        EXPECT_FALSE(QToolTip::text().contains("<img"));
    }
}

TEST(PlainHints, AreLeftAsTheyAreWhereTheyCouldNotBeMisread) {
    EXPECT_EQ(asPlainHint("Slide (S)"), "Slide (S)");
    EXPECT_EQ(asPlainHint("a < b"), "a < b");
    EXPECT_EQ(asPlainHint("<b>"), "<span>&lt;b&gt;</span>");
}

// A file may bring texts of any length.
class LongTexts : public MainWindowTest {
  protected:
    void bring(std::string& text, std::size_t length) { text.assign(length, 'n'); }
};

TEST_F(LongTexts, AreShownInPart) {
    load();
    bring(window->document().Title, 1'000'000);
    bring(window->document().TrackNames.front(), 1'000'000);
    const QString start(static_cast<qsizetype>(LongestShownName), 'n');
    window->editor().refreshdrawing();
    EXPECT_EQ(window->windowTitle().size(), static_cast<qsizetype>(LongestShownName) + 1);
    trigger("mnuChoose");
    EXPECT_EQ(control<ListBox>(*window, "TrackNames")->item(0)->text().size(), 14); // not told yet
    trigger("mnuTrackProps");
    EXPECT_EQ(control<QLineEdit>(*form("frmTrackProperties"), "txtTrackName")->text(), start + QChar(0x2026));
    control<QPushButton>(*form("frmTrackProperties"), "Command3")->click();
    EXPECT_EQ(window->document().TrackNames.front().size(), 1'000'000u);
    EXPECT_EQ(control<ListBox>(*window, "TrackNames")->item(0)->text(), start + QChar(0x2026));
    boxes.queueAnswer(BoxAnswer::Cancel);
    boxes.take();
    trigger("mnuFileNew");
    EXPECT_LT(boxes.take().first().box.text.size(), 1100);
}

TEST_F(LongTexts, OfANameAreReplacedWhenTheUserWritesAnother) {
    load();
    bring(window->document().TrackNames.front(), 5000);
    trigger("mnuTrackProps");
    auto* box = control<QLineEdit>(*form("frmTrackProperties"), "txtTrackName");
    box->setText("Lead");
    control<QPushButton>(*form("frmTrackProperties"), "Command3")->click();
    EXPECT_EQ(window->document().TrackNames.front(), "Lead");
}

TEST_F(LongTexts, OfTheNotesStayBehindWhatIsShown) {
    load();
    const std::string notes(1'000'000, 'n');
    window->document().Notes = notes;
    trigger("mnuFileProperties");
    auto* box = control<QPlainTextEdit>(*form("frmFileProperties"), "txtNotes");
    EXPECT_EQ(box->toPlainText().size(), 10'000);
    control<QPushButton>(*form("frmFileProperties"), "Command1")->click();
    EXPECT_TRUE(window->document().Notes == notes);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    trigger("mnuFileProperties");
    box = control<QPlainTextEdit>(*form("frmFileProperties"), "txtNotes");
    box->setPlainText("new start\n");
    control<QPushButton>(*form("frmFileProperties"), "Command1")->click();
    EXPECT_TRUE(window->document().Notes == "new start\r\n" + notes.substr(10'000));
}

TEST_F(LongTexts, OfTenThousandLinesAreAllShown) {
    load();
    std::string notes;
    for (int line = 0; line < 10'000; ++line)
        notes += "line\r\n";
    window->document().Notes = notes;
    trigger("mnuFileProperties");
    auto* box = control<QPlainTextEdit>(*form("frmFileProperties"), "txtNotes");
    EXPECT_EQ(box->blockCount(), 10'001);
    box->moveCursor(QTextCursor::End);
    QTest::keyClicks(box, "x"); // full: refused
    EXPECT_EQ(box->blockCount(), 10'001);
    control<QPushButton>(*form("frmFileProperties"), "Command1")->click();
    EXPECT_TRUE(window->document().Notes == notes);
}

TEST(ShownNames, AreWholeUpToTheirLimit) {
    EXPECT_EQ(shownName("Song \xE9"), QString::fromUtf8("Song é"));
    EXPECT_EQ(shownName(std::string(LongestShownName, 'a')).size(), static_cast<qsizetype>(LongestShownName));
    EXPECT_EQ(shownName(std::string(LongestShownName + 1, 'a')).back(), QChar(0x2026));
}

} // namespace
} // namespace tabrova::testing

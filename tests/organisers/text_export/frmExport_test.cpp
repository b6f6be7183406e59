// The window of the text export: the text in its box, saved and printed.
#include "forms/code_page_box.h"
#include "organisers/text_export/frmExport.h"
#include "platform/fixed_font.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/workbench/tool_bench.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class TextExportWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmExport>(context, nullptr);
        form->closed = [this] { ++closings; };
        form->Form_Load();
        form->show();
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& at(const char* name) {
        return dynamic_cast<Control&>(*form->findChild<QWidget*>(name));
    }
    CodePageBox& box() { return at<CodePageBox>("txtfile"); }
    void click(const char* name) { QTest::mouseClick(&at(name), Qt::LeftButton); }
    void save(const std::optional<QString>& answer) {
        files.queueAnswer(answer);
        click("Command1");
    }
    static std::string bytesOf(const fs::path& file) {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    QString path(const char* name = "song.txt") const { return home.filePath(name); }

    std::unique_ptr<frmExport> form;
    int closings = 0;
};

TEST_F(TextExportWindow, ShowsTheTextWithABlankBehindEachLine) {
    document().Title = "Tune";
    document().setNote(0, 0, "7");
    open();
    const QStringList lines = box().wholeText().split('\n');
    ASSERT_EQ(lines.size(), 7 + 16 + 1);
    EXPECT_EQ(lines[0], "Tune by Anonymous - Created with Tabrova 3 (https://tabrova.invalid) ");
    EXPECT_EQ(lines[2], "  ");
    EXPECT_EQ(lines[7], "-7----" + QString(90, '-') + " ");
    EXPECT_EQ(lines[14], "  ");
    EXPECT_EQ(lines.last(), "");
    EXPECT_EQ(at<QLineEdit>("txtNewLine").text(), " \r\n");
    EXPECT_FALSE(at("txtNewLine").isVisible());
}

TEST_F(TextExportWindow, LeavesTheTextInTheProgramsFolder) {
    open();
    QString file = QString::fromLatin1(bytesOf(folder() / "temp.txt").c_str());
    EXPECT_EQ(file.count("\r\n"), 7 + 16);
    EXPECT_EQ(box().wholeText(), file.replace("\r\n", " \n"));
    form.reset();
    EXPECT_TRUE(fs::exists(folder() / "temp.txt"));
}

TEST_F(TextExportWindow, AFolderInThePlaceOfTheFileIsNoHarm) {
    fs::create_directory(folder() / "temp.txt");
    open();
    EXPECT_EQ(box().wholeText().count('\n'), 7 + 16);
}

TEST_F(TextExportWindow, HasItsTextsAndAFixedFont) {
    open();
    EXPECT_EQ(form->windowTitle(), "Export Text File");
    EXPECT_EQ(at<QLabel>("Label1").text(),
              "Tabrova has compiled this file for you. Please make any alterations you "
              "wish, and then click a button:");
    const std::pair<const char*, const char*> buttons[] = {
        {"Command1", "Save"}, {"Command2", "Cancel"}, {"Command3", "Print"}};
    for (const auto& [name, text] : buttons)
        EXPECT_EQ(at<QPushButton>(name).text(), text);
    EXPECT_TRUE(isFixed(box().font()));
    EXPECT_EQ(form->windowModality(), Qt::WindowModal);
}

// A whole line of tablature is seen.
TEST_F(TextExportWindow, IsWideEnoughForTheTablature) {
    open();
    EXPECT_LE(box().horizontalScrollBar()->maximum(), 0);
    EXPECT_LT(form->width(), 1366);
    EXPECT_LT(form->height(), 700);
}

TEST_F(TextExportWindow, SavesWhatStandsInTheBox) {
    document().Author = "M\xFCller\xA0";
    document().setTechnique(0, 0, "b2.5");
    open();
    QTest::keyClicks(&box(), "My ");
    save(path());
    const auto asked = files.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].question.kind, FileQuestion::Kind::Save);
    const std::string saved = bytesOf(path().toStdString());
    EXPECT_TRUE(saved.starts_with("My Untitled by M\xFCller\xA0 - Created with")) << saved.substr(0, 40);
    EXPECT_NE(saved.find("\r\n---\xDF\xBD-"), std::string::npos);
    EXPECT_EQ(std::ranges::count(saved, '\n'), 7 + 16);
    EXPECT_TRUE(saved.ends_with("  \r\n"));
}

TEST_F(TextExportWindow, ProposesTheDocumentsName) {
    commands.documents.CommonDialog1.fileName = "/music/song.tr3";
    open();
    save(std::nullopt);
    EXPECT_EQ(files.take()[0].question.name, "/music/song.txt");
}

TEST_F(TextExportWindow, TellsOfTheSavedFileAndGoes) {
    open();
    save(path());
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].box.title, "Tabrova for Windows");
    EXPECT_EQ(asked[0].box.text, "File " + path() + " exported successfully.");
    EXPECT_EQ(asked[0].box.icon, BoxIcon::Information);
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(TextExportWindow, CancellingTheQuestionGoesBackToTheBox) {
    open();
    save(std::nullopt);
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(closings, 0);
}

TEST_F(TextExportWindow, AFailureIsSilentAndTheWindowStays) {
    open();
    for (const char* place : {"/dev/full", "/nowhere/song.txt", "/"}) {
        save(QString(place));
        EXPECT_TRUE(boxes.take().isEmpty()) << place;
        EXPECT_TRUE(form->isVisible()) << place;
    }
}

TEST_F(TextExportWindow, AFullDiskIsSilentToo) {
    open();
    {
        const FileSizeLimit full(100);
        save(path());
    }
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_TRUE(form->isVisible());
    save(path());
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(TextExportWindow, PrintsTheBoxAndStays) {
    document().Title = "Tune";
    open();
    QTest::keyClicks(&box(), "My ");
    click("Command3");
    const auto jobs = printer.take();
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(jobs[0].name, "Tune");
    EXPECT_EQ(jobs[0].text, box().wholeText());
    EXPECT_TRUE(jobs[0].text.startsWith("My Tune by"));
    EXPECT_EQ(jobs[0].fontFamily, "Courier New");
    EXPECT_EQ(jobs[0].pointSize, 8);
    EXPECT_EQ(jobs[0].left, 17.0);
    EXPECT_EQ(jobs[0].top, 14.0);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(TextExportWindow, CancelAndEscapeCloseIt) {
    open();
    click("Command2");
    EXPECT_EQ(closings, 1);
    form->show();
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_EQ(closings, 2);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(TextExportWindow, TakesOnlyWhatTheFileCanHold) {
    open();
    const QString before = box().wholeText();
    QKeyEvent arrow(QEvent::KeyPress, 0, {}, QString::fromUtf8("→"));
    QApplication::sendEvent(&box(), &arrow);
    EXPECT_EQ(box().wholeText(), before);
    QApplication::clipboard()->setText(QString::fromUtf8("é→\n½"));
    box().paste();
    EXPECT_EQ(box().wholeText(), QString::fromUtf8("é\n½") + before);
}

TEST_F(TextExportWindow, TheTabKeyLeavesTheBox) {
    open();
    EXPECT_TRUE(box().hasFocus());
    QStringList order;
    for (int stop = 0; stop < 4; ++stop) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order.append(QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(order, (QStringList{"Command1", "Command3", "Command2", "txtfile"}));
}

} // namespace
} // namespace tabrova::testing

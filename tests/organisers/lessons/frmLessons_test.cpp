// The window of guitar lessons: installed, read and removed.
#include "forms/folder_list.h"
#include "organisers/lessons/frmLessons.h"
#include "organisers/lessons/lesson_view.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/workbench/tool_bench.h"

#include <QAbstractButton>
#include <QAbstractTextDocumentLayout>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <fstream>

#include <sys/stat.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class LessonWindow : public ToolBench {
  protected:
    LessonWindow() { fs::create_directory(lessons()); }

    fs::path lessons() const { return folder() / "lessons"; }
    void lesson(const fs::path& name, const std::string& text) {
        write(lessons() / name, "{\\rtf1\\ansi " + text + "}");
    }
    static void write(const fs::path& file, const std::string& bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
    }
    static std::string bytesOf(const fs::path& file) {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    void open() {
        form = std::make_unique<frmLessons>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& at(const char* name) {
        return dynamic_cast<Control&>(*form->findChild<QWidget*>(name));
    }
    LessonView& view() { return at<LessonView>("txtLesson"); }
    FolderList& list() { return at<FolderList>("lstLessons"); }
    void click(const char* name) { QTest::mouseClick(&at(name), Qt::LeftButton); }
    bool selectorShows() { return at("Picture1").isVisible(); }
    QPoint rowPlace(int row) { return list().visualItemRect(list().item(row)).center(); }
    void choose(int row) { QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, rowPlace(row)); }
    void openRow(int row) {
        choose(row);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, rowPlace(row));
    }
    QStringList rows() {
        QStringList names;
        for (int row = 0; row < list().count(); ++row)
            names.append(list().item(row)->text());
        return names;
    }
    void install(const std::optional<QString>& answer) {
        files.queueAnswer(answer);
        click("Command2");
    }
    QString outside(const char* name, const std::string& bytes) {
        const fs::path file = folder() / name;
        write(file, bytes);
        return QString::fromStdString(file.string());
    }

    std::unique_ptr<frmLessons> form;
};

TEST_F(LessonWindow, OpensWithTheListOfRichTextFiles) {
    lesson("b.rtf", "B");
    lesson("A.RTF", "A");
    lesson("notes.txt", "no");
    lesson("rtf", "no");
    fs::create_directory(lessons() / "folder.rtf");
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Lessons");
    EXPECT_EQ(rows(), QStringList({"A.RTF", "b.rtf"}));
    EXPECT_TRUE(selectorShows());
    EXPECT_TRUE(at("imgLogo").isVisible());
    EXPECT_EQ(at<QGroupBox>("Picture1").title(), "  Lesson Selector:");
    EXPECT_EQ(at<QLabel>("Label1").text(), "Double Click to choose a lesson:");
    EXPECT_EQ(at<QAbstractButton>("Command2").text(), "Install Lesson");
    EXPECT_EQ(at<QAbstractButton>("Command3").text(), "Uninstall Lesson");
    EXPECT_EQ(at<QAbstractButton>("StatusBar1").text(), "Click here to select a lesson");
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(LessonWindow, ADoubleClickShowsTheLessonInTheWholeWindow) {
    lesson("one.rtf", "Hello {\\b there}");
    open();
    openRow(0);
    EXPECT_EQ(view().toPlainText(), "Hello there");
    EXPECT_TRUE(view().hasFocus());
    EXPECT_FALSE(selectorShows());
}

TEST_F(LessonWindow, ReturnInTheListShowsTheLessonToo) {
    lesson("one.rtf", "One");
    open();
    choose(0);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(view().toPlainText(), "One");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(LessonWindow, AClickOnTheStatusBarBringsTheSelectorBackOnTopOfIt) {
    lesson("one.rtf", "One");
    open();
    openRow(0);
    form->resize(700, 500);
    click("StatusBar1");
    EXPECT_TRUE(selectorShows());
    const QRect panel = at("Picture1").geometry();
    EXPECT_EQ(panel.top(), at("StatusBar1").geometry().top() - panel.height());
    EXPECT_EQ(panel.left(), 0);
    EXPECT_EQ(form->childAt(panel.center())->window(), form.get());
    EXPECT_TRUE(at("Picture1").isAncestorOf(form->childAt(panel.center())));
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(view().toPlainText(), "One");
}

TEST_F(LessonWindow, TheStatusBarIsPressedByKeysToo) {
    lesson("one.rtf", "One");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        open();
        openRow(0);
        at("StatusBar1").setFocus();
        QTest::keyClick(&at("StatusBar1"), key);
        EXPECT_TRUE(selectorShows()) << key;
    }
}

TEST_F(LessonWindow, ALessonThatCannotBeReadChangesNothing) {
    lesson("one.rtf", "One");
    lesson("two.rtf", "Two");
    open();
    openRow(0);
    click("StatusBar1");
    choose(1);
    fs::remove(lessons() / "two.rtf");
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, rowPlace(1));
    EXPECT_EQ(view().toPlainText(), "One");
    EXPECT_TRUE(selectorShows());
    ASSERT_EQ(mkfifo((lessons() / "two.rtf").c_str(), 0600), 0);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, rowPlace(1));
    EXPECT_EQ(view().toPlainText(), "One");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(LessonWindow, AFileThatIsNoRichTextShowsAsPlainText) {
    write(lessons() / "plain.rtf", "One\r\nT\xC3\xA4 <b>two</b>\x01");
    write(lessons() / "western.rtf", "caf\xE9");
    write(lessons() / "empty.rtf", "");
    open();
    openRow(1);
    EXPECT_EQ(view().toPlainText(), QString::fromUtf8("One\nT\xC3\xA4 <b>two</b>"));
    openRow(2);
    EXPECT_EQ(view().toPlainText(), QString::fromUtf8("caf\xC3\xA9"));
    openRow(0);
    EXPECT_EQ(view().toPlainText(), "");
    EXPECT_FALSE(selectorShows());
}

// As a file that is no text has them. Their characters are not lost.
TEST_F(LessonWindow, WordsWithoutAnEndAreSharedOutOverParagraphs) {
    QString word;
    for (int count = 0; count < 100'000; ++count)
        word += QString::fromUtf8("a\xF0\x9F\x8E\xB8");
    write(lessons() / "a.rtf", word.toStdString());
    write(lessons() / "b.rtf", "{\\rtf1\\ansi " + std::string(300'000, 'b') + "{\\b c}}");
    open();
    openRow(0);
    EXPECT_EQ(view().toPlainText().remove('\n'), word);
    EXPECT_GT(view().document()->blockCount(), 20);
    click("StatusBar1");
    openRow(1);
    EXPECT_EQ(view().toPlainText().remove('\n'), QString(300'000, 'b') + "c");
}

TEST_F(LessonWindow, ANewLessonShowsFromItsBeginning) {
    std::string longText;
    for (int line = 0; line < 300; ++line)
        longText += "line\\par ";
    lesson("a.rtf", longText);
    lesson("b.rtf", longText);
    open();
    openRow(0);
    view().verticalScrollBar()->setValue(2000);
    ASSERT_GT(view().verticalScrollBar()->value(), 0);
    click("StatusBar1");
    openRow(1);
    EXPECT_EQ(view().verticalScrollBar()->value(), 0);
}

TEST_F(LessonWindow, InstallsTheChosenFileUnderItsBareName) {
    const std::string bytes = "{\\rtf1 New}";
    const QString file = outside("My lesson.rtf", bytes);
    open();
    install(file);
    EXPECT_EQ(bytesOf(lessons() / "My lesson.rtf"), bytes);
    EXPECT_EQ(rows(), QStringList{"My lesson.rtf"});
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].box.title, "Done");
    EXPECT_EQ(asked[0].box.text, "The Lesson: My lesson.rtf has been installed successfully.");
    EXPECT_EQ(asked[0].box.icon, BoxIcon::Information);
    EXPECT_EQ(asked[0].box.buttons, QList<BoxAnswer>{BoxAnswer::Ok});
    const auto questions = files.take();
    ASSERT_EQ(questions.size(), 1);
    EXPECT_EQ(questions[0].question.kind, FileQuestion::Kind::Open);
    EXPECT_EQ(questions[0].question.filter, "Rich Text Files|*.rtf");
}

TEST_F(LessonWindow, ALessonOfThatNameIsReplacedWithoutAQuestion) {
    lesson("one.rtf", "Old");
    open();
    openRow(0);
    click("StatusBar1");
    install(outside("one.rtf", "{\\rtf1 New}"));
    EXPECT_EQ(boxes.take().size(), 1);
    EXPECT_EQ(bytesOf(lessons() / "one.rtf"), "{\\rtf1 New}");
    EXPECT_EQ(rows(), QStringList{"one.rtf"});
    EXPECT_EQ(view().toPlainText(), "Old");
    openRow(0);
    EXPECT_EQ(view().toPlainText(), "New");
}

TEST_F(LessonWindow, ALessonThatIsInTheFolderAlreadyStaysWhole) {
    lesson("one.rtf", "One");
    open();
    const std::string before = bytesOf(lessons() / "one.rtf");
    install(QString::fromStdString((lessons() / "one.rtf").string()));
    EXPECT_EQ(bytesOf(lessons() / "one.rtf"), before);
    EXPECT_EQ(boxes.take().size(), 1);
}

TEST_F(LessonWindow, AnInstallationThatIsCancelledOrFailsEndsWithoutAWord) {
    lesson("one.rtf", "One");
    open();
    install(std::nullopt);
    install("");
    install(QString::fromStdString((folder() / "missing.rtf").string()));
    install(QString::fromStdString(folder().string()) + "/");
    install(QString::fromStdString(lessons().string()));
    const fs::path pipe = folder() / "pipe.rtf";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    install(QString::fromStdString(pipe.string()));
    const QString large = outside("large.rtf", std::string(200'000, 'x'));
    {
        const FileSizeLimit limit(50'000);
        install(large);
    }
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_EQ(rows(), QStringList{"one.rtf"});
    EXPECT_EQ(std::distance(fs::directory_iterator(lessons()), {}), 1);
}

TEST_F(LessonWindow, WithoutItsFolderTheListIsEmptyAndAnInstallationFailsSilently) {
    fs::remove_all(lessons());
    open();
    EXPECT_TRUE(rows().isEmpty());
    install(outside("one.rtf", "{\\rtf1 One}"));
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_FALSE(fs::exists(lessons()));
}

TEST_F(LessonWindow, UninstallsTheChosenLessonAfterAYes) {
    lesson("one.rtf", "One");
    lesson("two.rtf", "Two");
    open();
    openRow(0);
    click("StatusBar1");
    boxes.queueAnswer(BoxAnswer::Yes);
    click("Command3");
    EXPECT_FALSE(fs::exists(lessons() / "one.rtf"));
    EXPECT_EQ(rows(), QStringList{"two.rtf"});
    EXPECT_EQ(view().toPlainText(), "One");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].box.title, "Uninstall Lesson");
    EXPECT_EQ(asked[0].box.text, "Are you sure you wish to uninstall the one.rtf lesson?");
    EXPECT_EQ(asked[0].box.buttons, (QList<BoxAnswer>{BoxAnswer::Yes, BoxAnswer::No}));
}

TEST_F(LessonWindow, ANoLeavesTheLessonAndRefreshesTheList) {
    lesson("one.rtf", "One");
    open();
    choose(0);
    lesson("two.rtf", "Two");
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Cancel}) {
        boxes.queueAnswer(answer);
        click("Command3");
    }
    EXPECT_TRUE(fs::exists(lessons() / "one.rtf"));
    EXPECT_EQ(rows(), QStringList({"one.rtf", "two.rtf"}));
}

TEST_F(LessonWindow, WithNothingChosenUninstallDoesNothing) {
    open();
    click("Command3");
    lesson("one.rtf", "One");
    list().readAgain();
    click("Command3");
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_TRUE(fs::exists(lessons() / "one.rtf"));
}

TEST_F(LessonWindow, NamesOfAnyBytesAndAnyLengthCanBeReadAndRemoved) {
    const std::string names[] = {"\xE9\xFF.rtf", "<b>x&.rtf", std::string(240, 'n') + ".rtf",
                                 "\xD0\xBA\xD0\xB8.rtf"};
    for (const std::string& name : names)
        lesson(name, "Text");
    open();
    ASSERT_EQ(list().count(), 4);
    for (int left = 4; left > 0; --left) {
        openRow(0);
        EXPECT_EQ(view().toPlainText(), "Text");
        click("StatusBar1");
        boxes.queueAnswer(BoxAnswer::Yes);
        choose(0);
        click("Command3");
        EXPECT_EQ(list().count(), left - 1);
    }
}

TEST_F(LessonWindow, LaysItselfOutAtEachSize) {
    open();
    form->resize(1000, 700);
    QApplication::processEvents();
    EXPECT_EQ(view().geometry(), QRect(0, 0, 881, 676));
    EXPECT_EQ(at("StatusBar1").geometry(), QRect(0, 676, 1000, 24));
    EXPECT_EQ(at("imgLogo").geometry().left(), 1000 - 118 + 6);
    EXPECT_EQ(at("Label8").geometry().left(), 1000 - 118 + 6);
    EXPECT_LE(at("Label8").geometry().right(), 1000);
    form->resize(500, 400);
    QApplication::processEvents();
    EXPECT_EQ(view().geometry(), QRect(0, 0, 381, 376));
    EXPECT_EQ(at("Label8").geometry().left(), 1000 - 118 + 6);
}

TEST_F(LessonWindow, TheTitleFitsBesideTheLessonWhateverItsLanguage) {
    std::string lines(239, '\n');
    for (const char* title : {"Guitar Lessons", "Gitarrenlektionen", "Lezioni per la chitarra"}) {
        write(folder() / "lang.trl", lines + "Lessons\n" + title + "\n");
        open();
        const auto& label = at<QLabel>("Label8");
        EXPECT_EQ(label.text(), title);
        for (const QString& word : label.text().split(' '))
            EXPECT_LE(label.fontMetrics().horizontalAdvance(word), label.width()) << title;
        EXPECT_TRUE(label.font().bold());
    }
}

TEST_F(LessonWindow, OpensLinksToTheWebAndToMailAlone) {
    lesson("one.rtf", "{\\field{\\*\\fldinst HYPERLINK \"https://example.org/a?b=c\"}{\\fldrslt web}}");
    open();
    openRow(0);
    const auto follow = [this](const char* address) {
        emit view().anchorClicked(QUrl(address));
        return addresses.take();
    };
    EXPECT_EQ(follow("https://example.org/a?b=c"), QStringList{"https://example.org/a?b=c"});
    EXPECT_EQ(follow("http://example.org"), QStringList{"http://example.org"});
    EXPECT_EQ(follow("mailto:a@example.org"), QStringList{"mailto:a@example.org"});
    for (const char* address : {"file:///etc/passwd", "/etc/passwd", "javascript:alert(1)", "other.rtf", "",
                                "data:text/html,x", "qrc:/x", "#place"})
        EXPECT_TRUE(follow(address).isEmpty()) << address;
    EXPECT_EQ(view().toPlainText(), "web");
}

TEST_F(LessonWindow, AClickOnALinkFollowsIt) {
    lesson("one.rtf", "\\fs96 {\\field{\\*\\fldinst HYPERLINK \"http://example.org\"}{\\fldrslt WEB}}");
    open();
    openRow(0);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, QPoint(60, 60));
    EXPECT_EQ(addresses.take(), QStringList{"http://example.org"});
}

TEST_F(LessonWindow, ALinkToAPlaceInTheLessonScrollsThere) {
    std::string text = "{\\field{\\*\\fldinst HYPERLINK \\\\l \"end\"}{\\fldrslt down}}";
    for (int line = 0; line < 200; ++line)
        text += "\\par line";
    lesson("one.rtf", text + "\\par {\\*\\bkmkstart end}{\\*\\bkmkend end}the end\\par");
    open();
    openRow(0);
    emit view().anchorClicked(QUrl("#end"));
    EXPECT_GT(view().verticalScrollBar()->value(), 1000);
    EXPECT_TRUE(addresses.take().isEmpty());
}

TEST_F(LessonWindow, TheViewLoadsNothingThatALessonNames) {
    open();
    EXPECT_FALSE(view().loadResource(QTextDocument::ImageResource, QUrl("file:///etc/hostname")).isValid());
    lesson("one.rtf",
           "<img src=\"/etc/hostname\">{\\field{\\*\\fldinst INCLUDEPICTURE \"/a.png\"}{\\fldrslt }}");
    list().readAgain();
    openRow(0);
    EXPECT_EQ(view().toPlainText(), "<img src=\"/etc/hostname\">");
    EXPECT_FALSE(view().document()->resource(QTextDocument::ImageResource, QUrl("/etc/hostname")).isValid());
}

TEST_F(LessonWindow, AnotherLessonTakesThePlaceOfTheLastOneManyTimes) {
    lesson("a.rtf", "A\\par\\trowd\\cellx1000\\intbl x\\cell\\row");
    lesson("b.rtf", "B");
    open();
    for (int turn = 0; turn < 20; ++turn) {
        openRow(turn % 2);
        EXPECT_TRUE(view().toPlainText().startsWith(turn % 2 ? 'B' : 'A'));
        click("StatusBar1");
    }
}

// The lessons that come with the program.
TEST_F(LessonWindow, TheShippedLessonsFitIntoTheWindowAndShowTheirPictures) {
    const struct {
        const char* name;
        const char* title;
        int pictures;
    } shipped[] = {{"1 First Chords.rtf", "First Chords", 3},
                   {"2 Reading Tab.rtf", "Reading Tab", 7},
                   {"3 Practising with the Metronome.rtf", "Practising with the Metronome", 2},
                   {"4 Writing a Riff in Tabrova.rtf", "Writing a Riff in Tabrova", 3}};
    for (const auto& each : shipped)
        fs::copy_file(fs::path(TABROVA_SOURCE_DIR) / "assets" / "lessons" / each.name, lessons() / each.name);
    open();
    for (int row = 0; row < 4; ++row) {
        openRow(row);
        EXPECT_EQ(view().document()->firstBlock().text(), shipped[row].title);
        EXPECT_EQ(view().toPlainText().count(QChar(0xFFFC)), shipped[row].pictures) << shipped[row].name;
        EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0) << shipped[row].name;
        for (int picture = 0; picture < shipped[row].pictures; ++picture) {
            const QUrl name("picture:" + QString::number(picture));
            EXPECT_FALSE(
                view().document()->resource(QTextDocument::ImageResource, name).value<QImage>().isNull());
        }
        click("StatusBar1");
    }
}

} // namespace
} // namespace tabrova::testing

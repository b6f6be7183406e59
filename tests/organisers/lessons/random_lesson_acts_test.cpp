// Random acts on the window of guitar lessons, each compared with a plain model that was written on its own.
#include "organisers/lessons/frmLessons.h"
#include "tests/organisers/lessons/plain_lessons.h"
#include "tests/organisers/random_acts.h"

#include <QTextBrowser>

namespace tabrova::testing {
namespace {

const std::vector<std::string> RandomLessons = {
    "one.rtf",   "Two.RTF",          "notes.txt",
    "a & b.rtf", "raw \xFF\xFE.rtf", "caf\xC3\xA9.rtf",
    ".rtf",      "one.rtf.part",     std::string(251, 'n') + ".rtf"};

class RandomLessonActs : public RandomOrganiserActs<frmLessons> {
  protected:
    RandomLessonActs() : RandomOrganiserActs("lessons") {
        std::filesystem::create_directory(place());
        room.there = true;
        if (GetParam() % 2 == 0) return;
        QStringList lines;
        for (int line = 1; line <= 245; ++line)
            lines.append(QString::fromUtf8("\xD0\x96%1").arg(line));
        std::ofstream(folder() / "lang.trl") << lines.join("\r\n").toStdString();
        words = lines.mid(239);
    }
    void open() {
        load();
        model = std::make_unique<PlainLessons>(room);
        model->resize(window->width(), window->height());
        fromEdge = window->width() - at("imgLogo").x();
        columnLeft = at("imgLogo").x();
        view.clear();
    }
    void act() {
        using A = RandomLessonActs;
        doOne<A>(*this, {&A::choose,    &A::choose,    &A::show,    &A::show,    &A::show,
                         &A::statusBar, &A::statusBar, &A::install, &A::install, &A::install,
                         &A::install,   &A::uninstall, &A::resize,  &A::resize,  &A::outside,
                         &A::outside,   &A::outside,   &A::list,    &A::folders, &A::reopen});
    }
    ::testing::AssertionResult sameAsModel() {
        const auto asked = askedText(model->asked);
        const auto plain = plainText(model->asked);
        model->asked.clear();
        if (const auto result = same("what was asked", asked, plain); !result) return result;
        if (const auto result = same("the window", shown(), wanted()); !result) return result;
        return sameRoom();
    }

  private:
    QString shown() {
        const QWidget& lesson = at("txtLesson");
        QString text = titleShown() + "\n" + (at("Picture1").isVisible() ? "selector" : "") + "\n";
        text += QString("%1,%2\n").arg(lesson.width()).arg(lesson.height());
        text += QString("logo %1\n").arg(at("imgLogo").x());
        text += QString("title follows %1\n").arg(at("Label8").x() == at("imgLogo").x());
        text += rowsText("lstLessons") + "\n" + at<QTextBrowser>("txtLesson").toPlainText() + "\n";
        return text + captions({});
    }
    QString wanted() const {
        QString text = words[0] + "\n" + (model->panel ? "selector" : "") + "\n";
        text += QString("%1,%2\n").arg(model->viewWidth).arg(model->viewHeight);
        text += QString("logo %1\ntitle follows 1\n").arg(columnLeft);
        text += rowsText(model->list) + "\n" + view + "\n";
        return text + captionText({words[1], words[2], words[3], words[4], words[5],
                                   "Click here to select a lesson"});
    }

    // Rich text of which it is plain how it reads, or damaged.
    std::string anyLesson() {
        std::string text, bytes = "{\\rtf1\\ansi ";
        for (std::size_t count = 1 + below(5); count > 0; --count) {
            const std::string word = "w" + std::to_string(below(1000));
            text += word + (count > 1 ? "\n" : "");
            bytes += word + (count > 1 ? "\\par\r\n" : "}");
        }
        if (below(4) != 0) return lessonTexts[bytes] = QString::fromStdString(text), bytes;
        return oneOf<std::string>(
            {"", "{", "{\\rtf1", "{\\rtf1 cut {\\b", bytes.substr(0, below(bytes.size())), "plain text",
             "caf\xE9", "\xFF\xFE\x00\x01", "{\\rtf1 }}}}{{{", "{\\rtf1 " + std::string(20'000, '{'),
             "{\\rtf1\\bin99999999 x}", "{\\rtf1{\\pict\\pngblip 89504e47}}",
             "{\\rtf1\\trowd\\cellx1 a\\cell\\row", "{\\rtf1\\u-99999 ?\\'zz\\fs-1\\li99999999 x}"});
    }
    void choose() {
        told = "choose";
        if (!model->panel) return;
        if (chooseRow("lstLessons", model->list)) told += " " + *model->list.chosen;
    }
    void show() {
        told = "show";
        if (!model->panel) return;
        const auto row = chooseRow("lstLessons", model->list);
        if (!row && !model->list.chosen) return;
        told += " " + *model->list.chosen;
        if (below(2) == 0)
            QTest::keyClick(&at("lstLessons"), Qt::Key_Return);
        else
            clickRow("lstLessons", static_cast<std::size_t>(model->list.row()), true);
        if (!model->show()) return;
        EXPECT_EQ(window->focusWidget(), &at("txtLesson"));
        const auto known = lessonTexts.find(*room.file(*model->list.chosen));
        view = known != lessonTexts.end() ? known->second : at<QTextBrowser>("txtLesson").toPlainText();
    }
    void statusBar() {
        told = "status bar";
        press("StatusBar1");
        model->bringBack();
        const QRect panel = at("Picture1").geometry(), bar = at("StatusBar1").geometry();
        EXPECT_EQ(panel.top(), std::max(0, bar.top()) - panel.height());
        EXPECT_EQ(bar.top() + bar.height(), window->height());
    }
    void install() {
        told = "install";
        if (!model->panel) return;
        const std::filesystem::path elsewhere = folder() / "elsewhere";
        const std::string name = oneOf(RandomLessons);
        PlainRoom::Entry from{PlainRoom::Kind::File, anyLesson()};
        std::filesystem::path path = elsewhere / name;
        const PlainRoom::Entry* there = &from;
        bool itself = false;
        std::filesystem::remove_all(path);
        const std::size_t way = below(9);
        if (way == 0) {
            there = nullptr; // no such file
        } else if (way == 1) {
            from.kind = PlainRoom::Kind::Pipe;
            mkfifo(path.c_str(), 0600);
        } else if (way == 2) {
            from.kind = PlainRoom::Kind::Folder;
            std::filesystem::create_directory(path);
        } else if (way == 3) {
            path = place() / name;
            itself = true;
            const auto found = room.entries.find(name);
            there = found == room.entries.end() ? nullptr : &found->second;
        } else {
            std::ofstream(path, std::ios::binary) << from.bytes;
        }
        const bool cancelled = below(8) == 0;
        told += " " + path.string() + (cancelled ? " cancelled" : "");
        files.queueAnswer(cancelled ? std::nullopt : std::optional(textOf(path)));
        onDisk([this] { press("Command2"); });
        const auto asked = files.take();
        ASSERT_EQ(asked.size(), 1) << told;
        EXPECT_TRUE(asked.first().question.filter.contains("*.rtf"));
        EXPECT_EQ(asked.first().question.kind, FileQuestion::Kind::Open);
        const PlainRoom::Entry copy = there ? *there : from;
        model->install(name, cancelled || !there ? nullptr : &copy, itself);
        room.full = false;
    }
    void uninstall() {
        if (!model->panel) return;
        const std::size_t answer = below(3);
        told = "uninstall " + model->list.chosen.value_or("nothing") + std::to_string(answer);
        static const BoxAnswer answers[] = {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel};
        if (model->list.chosen) boxes.queueAnswer(answers[answer]);
        press("Command3");
        model->uninstall(answer == 0);
    }
    void resize() {
        // At the edges of what is laid out, or anywhere.
        const bool edge = below(2) == 0;
        const int width = edge ? oneOf<int>({133, 134, 135, 533, 534}) : static_cast<int>(1 + below(1400));
        const int height = below(2) == 0 ? oneOf<int>({66, 67, 68}) : static_cast<int>(1 + below(900));
        window->resize(width, height);
        told = "resize " + std::to_string(window->width()) + "," + std::to_string(window->height());
        model->resize(window->width(), window->height());
        if (window->width() * 15 > 8000) columnLeft = window->width() - fromEdge;
    }
    void outside() {
        changeFiles(RandomLessons);
        if (told == "outside" || !room.there || below(2) == 0) return;
        const std::string name = oneOf(RandomLessons);
        make(name, anyLesson());
        told += ", " + name;
    }
    void list() {
        told = "list into view";
        if (!model->panel) return;
        at("lstLessons").hide();
        at("lstLessons").show();
        model->list.readAgain(room);
    }
    void folders() {
        told = "folder";
        if (below(4) == 0)
            loseFolder();
        else
            giveFolderBack();
    }
    void reopen() {
        told = "reopen";
        unload();
        open();
    }

    QStringList words = {"Tabrova - Lessons",  "Guitar Lessons",
                         "  Lesson Selector:", "Double Click to choose a lesson:",
                         "Install Lesson",     "Uninstall Lesson"};
    std::unique_ptr<PlainLessons> model;
    std::map<std::string, QString> lessonTexts;
    QString view;
    int fromEdge = 0, columnLeft = 0;
};

TEST_P(RandomLessonActs, LeaveTheWindowLikeThePlainModel) {
    open();
    ASSERT_TRUE(sameAsModel());
    std::string acts;
    for (int count = 0; count < 700; ++count) {
        act();
        acts = told + "; " + acts.substr(0, 300);
        ASSERT_TRUE(sameAsModel()) << "after " << count << " acts, the last first: " << acts;
    }
    EXPECT_EQ(ends, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLessonActs, ::testing::Range(1u, 5u));

} // namespace
} // namespace tabrova::testing

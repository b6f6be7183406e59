// The real file chooser as the user meets it, and the recording one.
#include "platform/file_chooser.h"
#include "tests/platform/when_shown.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

namespace tabrova {
namespace {

class RealChooser : public ::testing::Test {
  protected:
    QString path(const QString& name) const { return folder.filePath(name); }
    void makeFile(const QString& name) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    FileQuestion question(FileQuestion::Kind kind) const {
        return {kind, "Tabs|*.tr3|Everything|*.tr3;*.txt", "tr3", path("shown.tr3")};
    }
    // The answer to `asked` after `act` in the dialog.
    std::optional<QString> answerTo(const FileQuestion& asked, std::function<void(QFileDialog&)> act) {
        const WhenShown<QFileDialog> user(std::move(act));
        return chooser.choose(asked);
    }
    // The answer after `name` is typed and Open or Save is chosen.
    std::optional<QString> answerToName(FileQuestion::Kind kind, const QString& name) {
        return answerTo(question(kind), [name](QFileDialog& dialog) { enter(dialog, name); });
    }
    static void enter(QFileDialog& dialog, const QString& name) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
        static_cast<QDialog&>(dialog).accept();
    }

    QTemporaryDir folder;
    DesktopFileChooser chooser;
};

TEST_F(RealChooser, SavesUnderTheDefaultExtensionWhereTheNameHasNone) {
    EXPECT_EQ(answerToName(FileQuestion::Kind::Save, "song"), path("song.tr3"));
    EXPECT_EQ(answerToName(FileQuestion::Kind::Save, "song.txt"), path("song.txt"));
}

TEST_F(RealChooser, OpensWhereTheLastFileWasChosen) {
    MemorySettingsStore settings;
    QTemporaryDir other;
    const QString elsewhere = QDir(other.path()).canonicalPath();
    FileQuestion asked = question(FileQuestion::Kind::Save);
    chooser.rememberIn(settings);
    answerTo(asked, [&](QFileDialog& dialog) { enter(dialog, elsewhere + "/song.tr3"); });
    EXPECT_EQ(settings.GetSetting("Files", "Folder", ""), elsewhere);
    const auto openedIn = [&](const QString& name) {
        asked.name = name;
        QString shown;
        answerTo(asked, [&shown](QFileDialog& dialog) {
            shown = dialog.directory().canonicalPath() + "|" +
                    dialog.findChild<QLineEdit*>("fileNameEdit")->text();
            dialog.reject();
        });
        return shown;
    };
    EXPECT_EQ(openedIn(""), elsewhere + "|");
    EXPECT_EQ(openedIn("proposed.tr3"), elsewhere + "|proposed.tr3");
    EXPECT_EQ(openedIn(path("shown.tr3")), QDir(folder.path()).canonicalPath() + "|shown.tr3")
        << "a place of its own";
    DesktopFileChooser next;
    next.rememberIn(settings);
    std::swap(chooser, next);
    EXPECT_EQ(openedIn(""), elsewhere + "|") << "the next run";
    settings.SaveSetting("Files", "Folder", elsewhere + "/gone");
    EXPECT_NE(openedIn(""), elsewhere + "/gone|");
}

TEST_F(RealChooser, OpensAFileWithoutAnExtensionUnderItsOwnName) {
    makeFile("song");
    makeFile("song.tr3");
    EXPECT_EQ(answerToName(FileQuestion::Kind::Open, "song"), path("song"));
}

TEST_F(RealChooser, OpensOnlyWhatIsThere) {
    makeFile("there.tr3");
    const auto answer = answerTo(question(FileQuestion::Kind::Open), [](QFileDialog& dialog) {
        {
            const WhenShown<QMessageBox> refusal([](QMessageBox& box) { box.reject(); });
            enter(dialog, "nowhere.tr3");
        }
        EXPECT_TRUE(dialog.isVisible());
        enter(dialog, "there.tr3");
    });
    EXPECT_EQ(answer, path("there.tr3"));
}

TEST_F(RealChooser, AsksForOneFileToOpenOrForAnyNameToSave) {
    answerTo(question(FileQuestion::Kind::Open), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.reject();
    });
    answerTo(question(FileQuestion::Kind::Save), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
        dialog.reject();
    });
}

TEST_F(RealChooser, AnswersNothingWhenItIsCancelled) {
    makeFile("shown.tr3");
    for (const auto kind : {FileQuestion::Kind::Open, FileQuestion::Kind::Save})
        EXPECT_EQ(answerTo(question(kind), [](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(RealChooser, ShowsTheNameInItsFolder) {
    answerTo(question(FileQuestion::Kind::Save), [this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir(folder.path()));
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "shown.tr3");
        dialog.reject();
    });
}

TEST_F(RealChooser, ShowsNoNameWhereNoneIsAskedFor) {
    answerTo({FileQuestion::Kind::Save, "Tabs|*.tr3", "tr3", ""}, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "");
        dialog.reject();
    });
}

TEST_F(RealChooser, OffersTheFiltersByTheirNames) {
    FileQuestion asked = question(FileQuestion::Kind::Open);
    for (const auto& [filter, shown] :
         {std::pair<QString, QStringList>{"Tabs|*.tr3", {"Tabs (*.tr3)"}},
          {"Tabs |*.tr3|Everything|*.tr3;*.txt", {"Tabs (*.tr3)", "Everything (*.tr3 *.txt)"}},
          {"Tabs|*.tr3|no pattern", {"Tabs (*.tr3)"}}}) {
        asked.filter = filter;
        answerTo(asked, [expected = shown](QFileDialog& dialog) {
            EXPECT_EQ(dialog.nameFilters(), expected);
            dialog.reject();
        });
    }
}

TEST(RecordedChooser, AnswersFromItsQueueAndThenCancels) {
    RecordingFileChooser chooser;
    chooser.queueAnswer("a.tr3");
    chooser.queueAnswer(std::nullopt);
    chooser.queueAnswer("b.tr3");
    EXPECT_EQ(chooser.choose({}), "a.tr3");
    EXPECT_EQ(chooser.choose({}), std::nullopt);
    EXPECT_EQ(chooser.choose({}), "b.tr3");
    EXPECT_EQ(chooser.choose({}), std::nullopt);
}

TEST(RecordedChooser, KeepsWhatWasAskedUntilItIsTaken) {
    RecordingFileChooser chooser;
    chooser.queueAnswer("a.tr3");
    chooser.choose({FileQuestion::Kind::Save, "Tabs|*.tr3", "tr3", "shown"});
    const auto asked = chooser.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].question.name, "shown");
    EXPECT_EQ(asked[0].answer, "a.tr3");
    EXPECT_TRUE(chooser.take().isEmpty());
}

} // namespace
} // namespace tabrova

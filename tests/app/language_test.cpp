// Applying a language in the real program.
#include "driver_session.h"

#include <QDir>
#include <QFile>

#include <filesystem>

namespace tabrova::testing {
namespace {

class Languages : public ::testing::Test {
  protected:
    Languages() {
        const QString assets = QString(TABROVA_SOURCE_DIR) + "/assets/";
        for (const char* language : {"English", "German", "Russian"}) {
            QDir(home.path()).mkpath(QString("languages/") + language);
            QFile::copy(assets + "languages/" + language + "/lang.trl",
                        home.filePath(QString("languages/%1/lang.trl").arg(language)));
        }
        QFile::copy(assets + "lang.trl", home.filePath("lang.trl"));
        drive = std::make_unique<DriverSession>(QStringList{"--home", home.path()});
    }
    void apply(const char* language) {
        drive->ok(QString("set frmOptions.lstLanguages =%1").arg(language));
        drive->ok("press frmOptions.lstLanguages Return");
    }
    std::string text(const char* control) {
        return DriverSession::text(drive->get(QString(control) + " text"));
    }
    QByteArray contents(const QString& name) {
        QFile file(home.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir home;
    std::unique_ptr<DriverSession> drive;
};

TEST_F(Languages, AreListedByTheirFolders) {
    EXPECT_EQ(drive->get("frmOptions.lstLanguages items").toArray(),
              (QJsonArray{"English", "German", "Russian"}));
}

TEST_F(Languages, AppliedReplaceTheActiveFileAndTheCaptions) {
    apply("German");
    EXPECT_EQ(contents("lang.trl"), contents("languages/German/lang.trl"));
    EXPECT_EQ(text("mnuFile"), "&Datei");
    EXPECT_EQ(DriverSession::text(drive->get("frmOptions title")), "Optionen");
    EXPECT_EQ(text("StatusBar1(1)"), "Spur Untitled Track");
    EXPECT_EQ(text("lbldebug").substr(0, 5), "Spur ");
    drive->ok("boxes");
    drive->ok("do mnuKillTrack");
    EXPECT_NE(DriverSession::text(drive->lastBox()["text"]), "This is the only track. It cannot be removed.");
    apply("English");
    EXPECT_EQ(text("mnuFile"), "&File");
}

TEST_F(Languages, AreAppliedByADoubleClick) {
    drive->ok("do mnuToolsOptions");
    drive->ok("set frmOptions.OptionsTabs 1");
    drive->ok("set frmOptions.lstLanguages =Russian");
    drive->ok("dblclick frmOptions.lstLanguages 20 8"); // the first row
    EXPECT_EQ(contents("lang.trl"), contents("languages/English/lang.trl"));
    drive->ok("set frmOptions.lstLanguages =German");
    drive->ok("dblclick frmOptions.lstLanguages 20 25");
    EXPECT_EQ(text("mnuFile"), "&Datei");
}

TEST_F(Languages, OfOtherScriptsComeThroughWhole) {
    apply("Russian");
    EXPECT_EQ(text("mnuFile"), "&Файл");
    EXPECT_TRUE(drive->get("StatusBar1(1) text").toString().endsWith(" Untitled Track"));
    EXPECT_FALSE(drive->get("StatusBar1(1) text").toString().contains('?'));
    drive->ok("boxes");
    drive->ok("answer cancel");
    drive->ok("do mnuFileNew");
    EXPECT_FALSE(DriverSession::text(drive->lastBox()["text"]).empty());
    EXPECT_FALSE(drive->get("lbldebug text").toString().contains('?'));
}

TEST_F(Languages, ChangeAnOpenWindowOnlyWhenItIsLoadedAgain) {
    drive->ok("do mnuTrackProps");
    apply("German");
    EXPECT_EQ(text("frmTrackProperties.Command3"), "Done");
    drive->ok("click frmTrackProperties.Command3");
    drive->ok("do mnuTrackProps");
    EXPECT_EQ(text("frmTrackProperties.Command3"), "Fertig");
}

TEST_F(Languages, WithoutAFileTakeTheActiveOneAwayAndNothingElse) {
    QDir(home.path()).mkpath("languages/Empty");
    drive = std::make_unique<DriverSession>(QStringList{"--home", home.path()});
    drive->ok("boxes");
    apply("Empty");
    EXPECT_FALSE(QFile::exists(home.filePath("lang.trl")));
    EXPECT_EQ(text("mnuFile"), "&File");
    EXPECT_TRUE(drive->ok("boxes")["boxes"].toArray().isEmpty());
}

TEST_F(Languages, OfTheFixedLinesAloneBringTheOtherTextsBack) {
    apply("German");
    EXPECT_NE(text("mnuSaveAs"), "Save &As...");
    QFile file(home.filePath("languages/English/lang.trl"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArrayList lines = file.readAll().split('\n').mid(0, 343);
    file.close();
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(lines.join('\n'));
    file.close();
    apply("English");
    EXPECT_EQ(text("mnuSaveAs"), "Save &As...");
    EXPECT_EQ(text("AddTrack"), "&Add Track");
}

TEST_F(Languages, MayStandInAFolderWhoseNameIsNoText) {
    const std::filesystem::path folder = home.path().toStdString() + "/languages/x\xFF\xFE";
    std::error_code failed;
    if (!std::filesystem::create_directory(folder, failed))
        GTEST_SKIP() << "this file system takes only names that are text";
    std::filesystem::copy_file(home.path().toStdString() + "/languages/German/lang.trl", folder / "lang.trl");
    drive = std::make_unique<DriverSession>(QStringList{"--home", home.path()});
    EXPECT_EQ(drive->get("frmOptions.lstLanguages items").toArray().size(), 4);
    drive->ok("do mnuToolsOptions");
    drive->ok("set frmOptions.OptionsTabs 1");
    drive->ok("set frmOptions.lstLanguages 3");
    drive->ok("press frmOptions.lstLanguages Return");
    EXPECT_EQ(text("mnuFile"), "&Datei");
    std::filesystem::remove_all(folder); // which the toolkit could not
}

TEST_F(Languages, StayForTheNextStart) {
    apply("German");
    drive = std::make_unique<DriverSession>(QStringList{"--home", home.path()});
    EXPECT_EQ(text("mnuFile"), "&Datei");
    EXPECT_TRUE(drive->get("StatusBar1(1) text").toString().startsWith("Untitled Track "));
}

} // namespace
} // namespace tabrova::testing

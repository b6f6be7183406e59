// What players come upon in the band manager, the lessons, the website manager and the help of the real
// program: odd dates, names and files, boxes that say no, and folders that are missing.
#include "driver_session.h"
#include "tests/organisers/help/written_topics.h"

#include <QDate>

#include <filesystem>
#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class OrganiserEdges : public ::testing::Test {
  protected:
    OrganiserEdges() {
        fs::create_directories(home() / "lessons");
        for (const char* name : {"lang.trl", "genmidi.txt"})
            fs::copy_file(fs::path(TABROVA_SOURCE_DIR) / "assets" / name, home() / name);
    }
    fs::path home() const { return fs::path(folder.path().toStdString()) / "home"; }
    void start() {
        drive.reset();
        drive = std::make_unique<DriverSession>(QStringList{"--home", QString::fromStdString(home().string()),
                                                            "--settings", folder.filePath("settings.ini")});
    }
    void write(const fs::path& file, const std::string& bytes) {
        std::ofstream(home() / file, std::ios::binary | std::ios::trunc) << bytes;
    }
    std::string bytesOf(const fs::path& file) {
        std::ifstream input(home() / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    std::vector<std::string> filesIn(const char* room) {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(home() / room))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }
    std::string text(const QString& control) { return DriverSession::text(drive->get(control)); }
    bool visible(const QString& control) { return drive->get(control + " visible").toBool(); }
    std::vector<std::string> rows(const QString& list) {
        std::vector<std::string> names;
        for (const QJsonValue& row : drive->get(list + " items").toArray())
            names.push_back(DriverSession::text(row));
        return names;
    }
    void set(const QString& control, const QString& value) {
        drive->ok("set " + control + " \"" + QString(value).replace('"', "\\\"") + '"');
    }
    void click(const QString& control) { drive->ok("click " + control); }
    // Title, text, icon and buttons of the boxes since the last time.
    std::vector<std::string> boxes() {
        std::vector<std::string> all;
        for (const QJsonValue& each : drive->ok("boxes")["boxes"].toArray()) {
            const QJsonObject box = each.toObject();
            std::string line;
            for (const char* part : {"title", "text", "icon"})
                line += DriverSession::text(box[part]) + "|";
            for (const QJsonValue& button : box["buttons"].toArray())
                line += DriverSession::text(button) + " ";
            all.push_back(line);
        }
        return all;
    }
    void addGig(const QString& month, const QString& day, const QString& year, const QString& title,
                const QString& memo) {
        set("frmBandManager.txtmonth", month);
        set("frmBandManager.txtday", day);
        set("frmBandManager.txtyear", year);
        set("frmBandManager.txtname", title);
        set("frmBandManager.txtmemo", memo);
        click("frmBandManager.Command6");
    }
    void showGig(const QString& name) {
        set("frmBandManager.File1", "=" + name);
        drive->ok("dblclick frmBandManager.File1");
    }

    QTemporaryDir folder;
    std::unique_ptr<DriverSession> drive;
};

using Lines = std::vector<std::string>;

constexpr char BadGig[] =
    "Tabrova for Windows|This gig cannot be added. Please check its date and its title.|exclamation|ok ";
constexpr char BadSite[] = "Error|This entry cannot be saved as the entry name contains invalid "
                           "characters.|exclamation|ok ";

TEST_F(OrganiserEdges, ABandThatIsOpenedForTheFirstTime) {
    start();
    drive->ok("do mnuBandManager");
    EXPECT_EQ(DriverSession::text(drive->get("frmBandManager title")), "Tabrova - Band Manager");
    EXPECT_EQ(rows("frmBandManager.tbMembers"),
              (Lines{"Member 1", "Member 2", "Member 3", "Member 4", "Member 5", "Member 6"}));
    EXPECT_EQ(drive->get("frmBandManager.sldMembers").toInt(), 6);
    for (int member = 0; member < 6; ++member) {
        const QString index = QString("(%1)").arg(member);
        EXPECT_EQ(text("frmBandManager.txtMemberName" + index), "Member " + std::to_string(member + 1));
        for (const char* box : {"txtMemberAddress", "txtMemberTelephone", "txtMemberEmail",
                                "txtMemberInstrument", "txtMemberEquipment"})
            EXPECT_EQ(text(QString("frmBandManager.") + box + index), "<none specified>");
    }
    EXPECT_EQ(text("frmBandManager.txtBandName"), "<New Band>");
    EXPECT_EQ(text("frmBandManager.txtBandDetails"), "");
    const QDate today = QDate::currentDate();
    EXPECT_EQ(text("frmBandManager.txtday"), today.toString("dd").toStdString());
    EXPECT_EQ(text("frmBandManager.txtmonth"), today.toString("MM").toStdString());
    EXPECT_EQ(text("frmBandManager.txtyear"), today.toString("yyyy").toStdString());
    EXPECT_TRUE(fs::is_directory(home() / "gigs"));
}

TEST_F(OrganiserEdges, FewerMembersKeepTheDataOfAll) {
    start();
    drive->ok("do mnuBandManager");
    set("frmBandManager.txtMemberName(5)", "Zoe");
    drive->ok("set frmBandManager.tbMembers 4");
    drive->ok("set frmBandManager.sldMembers 3");
    EXPECT_EQ(drive->get("frmBandManager.tbMembers").toInt(), 0);
    drive->ok("press frmBandManager Escape");
    drive->ok("quit");
    drive->status();
    std::ifstream settings(folder.filePath("settings.ini").toStdString());
    const std::string stored((std::istreambuf_iterator<char>(settings)), {});
    EXPECT_NE(stored.find("members=3"), std::string::npos) << stored;
    EXPECT_NE(stored.find("member6name=Zoe"), std::string::npos);
    for (const char* key : {"name", "address", "telephone", "email", "instrument", "equipment"})
        for (int member = 1; member <= 6; ++member)
            EXPECT_NE(stored.find("member" + std::to_string(member) + key + "="), std::string::npos);
    start();
    drive->ok("do mnuBandManager");
    EXPECT_EQ(drive->get("frmBandManager.sldMembers").toInt(), 3);
    EXPECT_EQ(text("frmBandManager.txtMemberName(5)"), "Zoe");
}

TEST_F(OrganiserEdges, GigsOfAnyDateAndTitle) {
    start();
    drive->ok("do mnuBandManager");
    drive->ok("do frmBandManager.mnuOption(1)");
    addGig("5", "7", "02", "Abcdef", "as typed");
    EXPECT_EQ(filesIn("gigs"), Lines{"5-7-02 -- Abcdef"});
    EXPECT_EQ(text("frmBandManager.txtname"), "");
    EXPECT_EQ(text("frmBandManager.txtmemo"), "");
    EXPECT_EQ(text("frmBandManager.txtday"), QDate::currentDate().toString("dd").toStdString());
    showGig("5-7-02 -- Abcdef");
    EXPECT_EQ(boxes(), Lines{"5-/-0/ -- : def|as typed|none|ok "});
    addGig("05", "07", "2002", "Club", "first");
    addGig("05", "07", "2002", "Club", "second, and more");
    EXPECT_EQ(bytesOf("gigs/05-07-2002 -- Club"), "second, and more\r\n");
    showGig("05-07-2002 -- Club");
    EXPECT_EQ(boxes(), Lines{"05/07/2002:  Club|second|none|ok "});
    addGig("05", "07", "2002", "Caf\u00e9 \u0416, \"x\"", "\"a, b\" c");
    EXPECT_EQ(bytesOf("gigs/05-07-2002 -- Caf\u00e9 \u0416, \"x\""), "\"a, b\" c\r\n");
    showGig("05-07-2002 -- Caf\u00e9 \u0416, \\\"x\\\"");
    EXPECT_EQ(filesIn("gigs").size(), 3U);
}

TEST_F(OrganiserEdges, GigsThatCannotBeAddedShownOrDeleted) {
    start();
    drive->ok("do mnuBandManager");
    drive->ok("do frmBandManager.mnuOption(1)");
    fs::create_directory(home() / "gigs" / "1-1-1 -- folder");
    for (const QString& title : {QString("a/b"), QString("a\\\\b"), QString(300, 'n'), QString("folder")}) {
        addGig("1", "1", "1", title, "memo");
        EXPECT_EQ(boxes(), Lines{BadGig}) << title.toStdString();
        EXPECT_EQ(text("frmBandManager.txtmemo"), "memo");
        EXPECT_EQ(text("frmBandManager.txtday"), "1");
    }
    write("gigs/empty", "");
    drive->ok("do frmBandManager.mnuOption(0)");
    drive->ok("do frmBandManager.mnuOption(1)");
    showGig("empty");
    EXPECT_TRUE(boxes().empty());
    fs::remove(home() / "gigs" / "empty");
    click("frmBandManager.Command1");
    EXPECT_TRUE(rows("frmBandManager.File1").empty());
    fs::remove_all(home() / "gigs");
    addGig("1", "1", "1", "good", "memo");
    EXPECT_EQ(boxes(), Lines{BadGig});
}

TEST_F(OrganiserEdges, LessonsAreInstalledReadAndRemoved) {
    write("lessons/old.rtf", "{\\rtf1 old}");
    write("new.rtf", "{\\rtf1 new {\\b one}}");
    fs::create_directory(home() / "elsewhere");
    write("elsewhere/old.rtf", "{\\rtf1 other}");
    start();
    drive->ok("do mnuToolsGuitarLessons");
    click("frmLessons.Command3");
    EXPECT_TRUE(boxes().empty()); // nothing is selected
    const QString place = QString::fromStdString(home().string());
    drive->ok("answer file \"" + place + "/new.rtf\"");
    click("frmLessons.Command2");
    EXPECT_EQ(boxes(), Lines{"Done|The Lesson: new.rtf has been installed successfully.|information|ok "});
    EXPECT_EQ(rows("frmLessons.lstLessons"), (Lines{"new.rtf", "old.rtf"}));
    drive->ok("answer file \"" + place + "/elsewhere/old.rtf\"");
    click("frmLessons.Command2");
    EXPECT_EQ(boxes().size(), 1U); // that it is done, and no question
    EXPECT_EQ(bytesOf("lessons/old.rtf"), "{\\rtf1 other}");
    drive->ok("answer file");
    click("frmLessons.Command2");
    drive->ok("answer file \"" + place + "/missing.rtf\"");
    click("frmLessons.Command2");
    EXPECT_TRUE(boxes().empty());

    set("frmLessons.lstLessons", "=new.rtf");
    drive->ok("press frmLessons.lstLessons Return");
    EXPECT_EQ(text("frmLessons.txtLesson"), "new one");
    EXPECT_FALSE(visible("frmLessons.Picture1"));
    click("frmLessons.StatusBar1");
    EXPECT_TRUE(visible("frmLessons.Picture1"));
    drive->ok("answer no");
    click("frmLessons.Command3");
    EXPECT_TRUE(fs::exists(home() / "lessons" / "new.rtf"));
    drive->ok("answer yes");
    click("frmLessons.Command3");
    const std::string question =
        "Uninstall Lesson|Are you sure you wish to uninstall the new.rtf lesson?|none|yes no ";
    EXPECT_EQ(boxes(), (Lines{question, question}));
    EXPECT_EQ(filesIn("lessons"), Lines{"old.rtf"});
    EXPECT_EQ(text("frmLessons.txtLesson"), "new one");
}

TEST_F(OrganiserEdges, LessonsWithoutTheirFolder) {
    fs::remove_all(home() / "lessons");
    write("new.rtf", "{\\rtf1 new}");
    start();
    fs::remove_all(home() / "lessons");
    drive->ok("do mnuToolsGuitarLessons");
    EXPECT_TRUE(rows("frmLessons.lstLessons").empty());
    drive->ok("answer file \"" + QString::fromStdString(home().string()) + "/new.rtf\"");
    click("frmLessons.Command2");
    click("frmLessons.Command3");
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(fs::exists(home() / "lessons"));
}

TEST_F(OrganiserEdges, ALessonHasTheWindowButAColumnAndTheStatusBar) {
    start();
    drive->ok("do mnuToolsGuitarLessons");
    const auto size = [this] {
        const QJsonArray place = drive->get("frmLessons.txtLesson geometry").toArray();
        return std::pair(place[2].toInt(), place[3].toInt());
    };
    drive->ok("resize frmLessons 1000 700");
    EXPECT_EQ(size(), std::pair(881, 676));
    drive->ok("resize frmLessons 640 480");
    EXPECT_EQ(size(), std::pair(521, 456));
    const QJsonArray panel = drive->get("frmLessons.Picture1 geometry").toArray();
    EXPECT_EQ(panel[1].toInt() + panel[3].toInt(), 456);
    drive->ok("resize frmLessons 133 600");
    EXPECT_EQ(size(), std::pair(521, 456));
    drive->ok("resize frmLessons 600 66");
    EXPECT_EQ(size(), std::pair(521, 456));
}

TEST_F(OrganiserEdges, WebsitesWithOddNamesAndFiles) {
    fs::create_directories(home() / "sites" / "folder");
    write("sites/one line", "http://one.example");
    write("sites/empty", "");
    write("sites/comma", "http://a.example/1,2\r\nfree, \"good\"\r\nthird\r\n");
    start();
    drive->ok("do mnuToolsWebsiteManager");
    EXPECT_EQ(rows("frmWebsites.sitesList"), (Lines{"comma", "empty", "one line"}));
    EXPECT_EQ(text("frmWebsites.siteURL"), "http://");
    EXPECT_EQ(text("frmWebsites.siteName"), "New Site");
    EXPECT_EQ(text("frmWebsites.txtDesc"), "This website is");
    const auto expectShown = [this](const QString& name, const char* address, const char* description) {
        set("frmWebsites.sitesList", "=" + name);
        EXPECT_EQ(text("frmWebsites.SiteLoader"), address);
        EXPECT_EQ(text("frmWebsites.lblDesc"), description);
    };
    expectShown("comma", "http://a.example/1,2", "free, \"good\"");
    expectShown("one line", "http://one.example", "");
    expectShown("comma", "http://a.example/1,2", "free, \"good\"");
    expectShown("empty", "", "");
    for (const char* name : {"", "..", "a/b", "folder"}) {
        set("frmWebsites.siteName", name);
        set("frmWebsites.siteURL", QString("http://x.example/") + name);
        click("frmWebsites.Command1");
        EXPECT_EQ(boxes(), Lines{BadSite}) << name;
        EXPECT_EQ(text("frmWebsites.SiteLoader"), std::string("http://x.example/") + name);
    }
    EXPECT_EQ(filesIn("sites"), (Lines{"comma", "empty", "folder", "one line"}));
    set("frmWebsites.siteName", "comma");
    click("frmWebsites.Command1");
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(bytesOf("sites/comma"), "http://x.example/folder\r\nThis website is\r\n");
    expectShown("comma", "http://x.example/folder", "This website is");
    click("frmWebsites.Command3");
    EXPECT_EQ(text("frmWebsites.SiteLoader"), "");
    EXPECT_EQ(text("frmWebsites.lblDesc"), "This website is");
    click("frmWebsites.Command3");
    click("frmWebsites.Command2");
    EXPECT_EQ(filesIn("sites"), (Lines{"empty", "folder", "one line"}));
    EXPECT_TRUE(drive->ok("opened")["opened"].toArray().isEmpty());
}

TEST_F(OrganiserEdges, EveryTopicOfTheHelp) {
    start();
    drive->ok("do mnuHelpContents");
    EXPECT_EQ(text("frmHelp.lblTitle"), "Welcome To Tabrova!");
    EXPECT_EQ(text("frmHelp.Label1"), "How do I...");
    EXPECT_TRUE(text("frmHelp.lblHelp(0)").starts_with("Welcome to Tabrova! Tabrova is an essential tool"));
    Lines questions;
    for (const WrittenTopic& topic : WrittenTopics)
        questions.emplace_back(topic.question);
    EXPECT_EQ(rows("frmHelp.lstTopics"), questions);
    for (const int time : {0, 1}) {
        for (const WrittenTopic& topic : WrittenTopics) {
            drive->ok(QString("set frmHelp.lstTopics %1").arg(topic.position));
            EXPECT_EQ(text("frmHelp.lblTitle"), "How do I " + std::string(topic.question)) << time;
            EXPECT_EQ(text("frmHelp.lblHelp(0)"), topic.answer);
        }
    }
}

TEST_F(OrganiserEdges, AnotherLanguageButForTheHelp) {
    fs::copy_file(fs::path(TABROVA_SOURCE_DIR) / "assets" / "languages" / "German" / "lang.trl",
                  home() / "lang.trl", fs::copy_options::overwrite_existing);
    start();
    for (const char* item :
         {"mnuBandManager", "mnuToolsGuitarLessons", "mnuToolsWebsiteManager", "mnuHelpContents"})
        drive->ok(QString("do ") + item);
    EXPECT_EQ(DriverSession::text(drive->get("frmBandManager title")), "Tabrova - Band-Manager");
    EXPECT_NE(text("frmLessons.Command2"), "Install Lesson");
    EXPECT_NE(text("frmWebsites.Command1"), "Save this Entry");
    EXPECT_EQ(text("frmHelp.lblTitle"), "Welcome To Tabrova!");
}

} // namespace
} // namespace tabrova::testing

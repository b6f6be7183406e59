// The band manager, the website manager and the help in the real program, and a band that outlasts it.
#include "driver_session.h"

#include <filesystem>
#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class ProgramOrganisers : public ::testing::Test {
  protected:
    ProgramOrganisers() {
        fs::create_directory(home());
        for (const char* name : {"lang.trl", "genmidi.txt"})
            fs::copy_file(fs::path(TABROVA_SOURCE_DIR) / "assets" / name, home() / name);
    }
    fs::path home() const { return fs::path(folder.path().toStdString()) / "home"; }
    QStringList arguments() const {
        return {"--home", QString::fromStdString(home().string()), "--settings",
                folder.filePath("settings.ini")};
    }
    static std::string bytesOf(const fs::path& file) {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }

    QTemporaryDir folder;
};

const QStringList MemberBoxes = {"txtMemberName",  "txtMemberAddress",    "txtMemberTelephone",
                                 "txtMemberEmail", "txtMemberInstrument", "txtMemberEquipment"};

QString boxOf(const QString& box, int member) {
    return QString("frmBandManager.%1(%2)").arg(box).arg(member);
}
QString textOf(const QString& box, int member) {
    return QString::fromUtf8("%1 é Ж %2, \"x\"").arg(box).arg(member);
}
QString quoted(QString text) { return '"' + text.replace('"', "\\\"") + '"'; }

TEST_F(ProgramOrganisers, KeepEveryTextOfTheBandForTheNextStart) {
    {
        DriverSession drive(arguments());
        drive.ok("do mnuBandManager");
        for (const QString& box : MemberBoxes)
            for (int member = 0; member < 6; ++member)
                drive.ok("set " + boxOf(box, member) + " " + quoted(textOf(box, member)));
        drive.ok("set frmBandManager.sldMembers 4");
        drive.ok("do frmBandManager.mnuOption(2)");
        drive.ok("set frmBandManager.txtBandName \"Rock & Roll\"");
        drive.ok("set frmBandManager.txtBandDetails \"one\\ntwo\"");
        EXPECT_EQ(DriverSession::text(drive.get("frmBandManager title")), "Rock & Roll");
        drive.ok("quit"); // the window is still open
        EXPECT_EQ(drive.status(), 0);
    }
    DriverSession drive(arguments());
    drive.ok("do mnuBandManager");
    for (const QString& box : MemberBoxes)
        for (int member = 0; member < 6; ++member)
            EXPECT_EQ(drive.get(boxOf(box, member)).toString(), textOf(box, member));
    EXPECT_EQ(drive.get("frmBandManager.sldMembers").toInt(), 4);
    EXPECT_EQ(DriverSession::text(drive.get("frmBandManager.txtBandName")), "Rock & Roll");
    EXPECT_EQ(DriverSession::text(drive.get("frmBandManager.txtBandDetails")), "one\ntwo");
    EXPECT_EQ(DriverSession::text(drive.get("frmBandManager title")), "Rock & Roll");
    const QJsonArray tabs = drive.get("frmBandManager.tbMembers items").toArray();
    EXPECT_EQ(tabs[3].toString(), textOf("txtMemberName", 3));
    drive.ok("set frmBandManager.txtMemberName(0) Ann");
    drive.ok("press frmBandManager Escape");
    EXPECT_EQ(drive.error("get frmBandManager.txtBandName"), "not loaded");
    drive.ok("do mnuBandManager");
    EXPECT_EQ(DriverSession::text(drive.get("frmBandManager.txtMemberName(0)")), "Ann");
}

TEST_F(ProgramOrganisers, LogGigsAndSendMail) {
    DriverSession drive(arguments());
    drive.ok("do mnuBandManager");
    EXPECT_TRUE(drive.get("frmBandManager.tbMembers visible").toBool());
    drive.ok("click frmBandManager.sndEmail(0)");
    EXPECT_EQ(drive.ok("opened")["opened"].toArray(), (QJsonArray{"mailto:<none specified>"}));
    drive.ok("click frmBandManager.mnuOption(1)");
    EXPECT_TRUE(drive.get("frmBandManager.picGigs visible").toBool());
    EXPECT_FALSE(drive.get("frmBandManager.tbMembers visible").toBool());
    for (const char* set : {"txtmonth 05", "txtday 17", "txtyear 2024", "txtname \"Blue Note\"",
                            "txtmemo \"bring picks, and strings\""})
        drive.ok(QString("set frmBandManager.") + set);
    drive.ok("click frmBandManager.Command6");
    EXPECT_EQ(bytesOf(home() / "gigs" / "05-17-2024 -- Blue Note"), "bring picks, and strings\r\n");
    drive.ok("set frmBandManager.File1 \"=05-17-2024 -- Blue Note\"");
    drive.ok("dblclick frmBandManager.File1");
    const QJsonObject box = drive.lastBox();
    EXPECT_EQ(box["title"].toString(), "05/17/2024:  Blue Note");
    EXPECT_EQ(box["text"].toString(), "bring picks");
    drive.ok("click frmBandManager.Command1");
    EXPECT_TRUE(fs::is_empty(home() / "gigs"));
}

TEST_F(ProgramOrganisers, KeepAndOpenWebsites) {
    DriverSession drive(arguments());
    drive.ok("do mnuToolsWebsiteManager");
    drive.ok("set frmWebsites.siteURL http://tabs.example");
    drive.ok("set frmWebsites.siteName Tabs");
    drive.ok("set frmWebsites.txtDesc \"many, and good\"");
    drive.ok("click frmWebsites.Command1");
    EXPECT_EQ(bytesOf(home() / "sites" / "Tabs"), "http://tabs.example\r\nmany, and good\r\n");
    drive.ok("click frmWebsites.Command2");
    EXPECT_TRUE(drive.ok("opened")["opened"].toArray().isEmpty());
    drive.ok("set frmWebsites.sitesList =Tabs");
    EXPECT_EQ(DriverSession::text(drive.get("frmWebsites.SiteLoader")), "http://tabs.example");
    EXPECT_EQ(DriverSession::text(drive.get("frmWebsites.lblDesc")), "many, and good");
    drive.ok("click frmWebsites.Command2");
    EXPECT_EQ(drive.ok("opened")["opened"].toArray(), (QJsonArray{"http://tabs.example"}));
    drive.ok("click frmWebsites.Command3");
    EXPECT_TRUE(fs::is_empty(home() / "sites"));
    EXPECT_EQ(DriverSession::text(drive.get("frmWebsites.SiteLoader")), "");
    drive.ok("set frmWebsites.siteName a/b");
    drive.ok("click frmWebsites.Command1");
    EXPECT_EQ(drive.lastBox()["icon"].toString(), "exclamation");
}

TEST_F(ProgramOrganisers, AnswerQuestions) {
    DriverSession drive(arguments());
    drive.ok("do mnuHelpContents");
    EXPECT_EQ(DriverSession::text(drive.get("frmHelp title")), "Tabrova - Help");
    EXPECT_EQ(drive.get("frmHelp.lstTopics").toInt(), -1);
    EXPECT_EQ(DriverSession::text(drive.get("frmHelp.lstTopics text")), "(Please select a topic)");
    EXPECT_EQ(drive.get("frmHelp.lstTopics items").toArray().size(), 35);
    for (int time = 0; time < 2; ++time) {
        drive.ok("set frmHelp.lstTopics 5");
        EXPECT_EQ(drive.get("frmHelp.lstTopics").toInt(), 5);
        EXPECT_EQ(DriverSession::text(drive.get("frmHelp.lblTitle")),
                  "How do I Export a  Document to a MIDI File?");
    }
    drive.ok("type frmHelp.lstTopics metronome");
    drive.ok("press frmHelp.lstTopics Return");
    EXPECT_EQ(drive.get("frmHelp.lstTopics").toInt(), 21);
    drive.ok("press frmHelp Escape");
    EXPECT_EQ(drive.error("get frmHelp.lstTopics"), "not loaded");
}

TEST_F(ProgramOrganisers, AnItemOnAWindowIsNoMenuItemOfAnyOtherKind) {
    DriverSession drive(arguments());
    drive.ok("do mnuBandManager");
    EXPECT_EQ(drive.error("do frmBandManager.Command6"), "not a menu item");
    EXPECT_EQ(drive.error("do frmBandManager.mnuOption(3)"), "no such control");
    drive.ok("do frmBandManager.MNUOPTION(1)");
    EXPECT_EQ(drive.get("frmBandManager.mnuOption(1)").toInt(), 1);
    EXPECT_EQ(drive.get("frmBandManager.mnuOption(0)").toInt(), 0);
}

} // namespace
} // namespace tabrova::testing

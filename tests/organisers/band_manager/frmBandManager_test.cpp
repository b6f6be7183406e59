// The band manager's address book: panels, members, names, mail, and what the settings keep of it.
#include "tests/organisers/band_manager/band_window.h"

namespace tabrova::testing {
namespace {

TEST_F(BandWindow, AFirstOpeningShowsSixMembersByTheirDefaults) {
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Band Manager");
    EXPECT_EQ(shownTabs(),
              QStringList({"Member 1", "Member 2", "Member 3", "Member 4", "Member 5", "Member 6"}));
    EXPECT_EQ(tabs().currentIndex(), 0);
    EXPECT_EQ(control<QSlider>("sldMembers").value(), 6);
    for (int member = 0; member < 6; ++member) {
        EXPECT_EQ(text(QString("txtMemberName(%1)").arg(member)), "Member " + std::to_string(member + 1));
        for (const char* box : {"txtMemberAddress", "txtMemberTelephone", "txtMemberEmail",
                                "txtMemberInstrument", "txtMemberEquipment"})
            EXPECT_EQ(text(QString("%1(%2)").arg(box).arg(member)), "<none specified>");
    }
    EXPECT_EQ(text("txtBandName"), "<New Band>");
    EXPECT_EQ(control<QPlainTextEdit>("txtBandDetails").toPlainText(), "");
    EXPECT_NE(form->findChild<QWidget*>("imgLogo"), nullptr);
}

TEST_F(BandWindow, EveryPageHasItsLabelsAndItsButton) {
    open();
    for (int member = 0; member < 6; ++member) {
        const auto at = [member](const char* name) { return QString("%1(%2)").arg(name).arg(member); };
        for (const auto& [label, caption, box] : {std::tuple{"Label2", "Member Name:", "txtMemberName"},
                                                  {"Label3", "Address:", "txtMemberAddress"},
                                                  {"Label4", "Telephone:", "txtMemberTelephone"},
                                                  {"Label5", "E-Mail Address:", "txtMemberEmail"},
                                                  {"Label6", "Instrument Played:", "txtMemberInstrument"},
                                                  {"Label7", "Equipment Owned:", "txtMemberEquipment"}}) {
            EXPECT_EQ(control<QLabel>(at(label)).text(), caption);
            EXPECT_EQ(control<QLabel>(at(label)).buddy(), &control(at(box)));
        }
        EXPECT_EQ(control<QPushButton>(at("sndEmail")).text(), "Send E-Mail");
    }
    for (const auto& [label, box] : {std::pair{"Label1", "sldMembers"},
                                     {"Label8", "txtBandName"},
                                     {"Label9", "txtBandDetails"},
                                     {"Label10", "File1"},
                                     {"Label11", "txtmonth"},
                                     {"Label12", "txtday"},
                                     {"Label13", "txtyear"},
                                     {"Label15", "txtname"},
                                     {"Label16", "txtmemo"}})
        EXPECT_EQ(control<QLabel>(label).buddy(), &control(box)) << label;
}

TEST_F(BandWindow, AnOptionShowsItsPanelAndHidesTheOthers) {
    open();
    const std::vector<const char*> panels = {"tbMembers", "picGigs", "picBANDDETAILS"};
    const auto expectOnly = [&](std::size_t shown) {
        for (std::size_t panel = 0; panel < panels.size(); ++panel) {
            EXPECT_EQ(seen(panels[panel]), panel == shown) << panels[panel];
            EXPECT_EQ(control(panels[panel]).isHidden(), panel != shown) << panels[panel];
            EXPECT_EQ(control<QPushButton>(QString("mnuOption(%1)").arg(panel)).isChecked(), panel == shown);
        }
        EXPECT_EQ(seen("sldMembers"), shown == 0);
        EXPECT_EQ(seen("Label1"), shown == 0);
    };
    expectOnly(0);
    for (const int option : {1, 2, 0, 2, 1, 1}) {
        choose(option);
        expectOnly(static_cast<std::size_t>(option));
    }
    EXPECT_EQ(control<QPushButton>("mnuOption(0)").text(), "Members");
    EXPECT_EQ(control<QPushButton>("mnuOption(1)").text(), "Gig Log ");
    EXPECT_EQ(control<QPushButton>("mnuOption(2)").text(), "Band Details");
}

TEST_F(BandWindow, KeysReachEveryPanelAndEveryBox) {
    open();
    EXPECT_EQ(form->focusWidget(), &control("mnuOption(0)"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(seen("picGigs"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(seen("picBANDDETAILS"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(seen("tbMembers"));
    control("sldMembers").setFocus();
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab); // the bar of the tabs
    for (const char* name :
         {"txtMemberName(0)", "txtMemberAddress(0)", "txtMemberTelephone(0)", "txtMemberEmail(0)",
          "sndEmail(0)", "txtMemberInstrument(0)", "txtMemberEquipment(0)"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form->focusWidget()->objectName(), name);
    }
    choose(1);
    gigs().setFocus();
    for (const char* name : {"Command1", "txtmonth", "txtday", "txtyear", "txtname", "txtmemo", "Command6"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form->focusWidget()->objectName(), name);
    }
    choose(2);
    control("txtBandName").setFocus();
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(form->focusWidget()->objectName(), "txtBandDetails");
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_NE(form->focusWidget()->objectName(), "txtBandDetails");
}

TEST_F(BandWindow, TheSliderShowsAsManyTabsAndSelectsTheFirst) {
    open();
    auto& slider = control<QSlider>("sldMembers");
    EXPECT_EQ(slider.minimum(), 1);
    EXPECT_EQ(slider.maximum(), 6);
    for (const int members : {3, 1, 6, 2, 5, 4}) {
        tabs().setCurrentIndex(0);
        if (tabs().isTabVisible(1)) tabs().setCurrentIndex(1);
        slider.setValue(members);
        EXPECT_EQ(shownTabs().size(), members);
        EXPECT_EQ(shownTabs().last(), QString("Member %1").arg(members));
        EXPECT_EQ(tabs().currentIndex(), 0);
        EXPECT_TRUE(seen("txtMemberName(0)"));
        EXPECT_EQ(control<QLabel>("lblMembers").text(), QString::number(members));
    }
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(shownTabs().size(), 3);
}

TEST_F(BandWindow, MembersAboveTheNumberKeepTheirData) {
    open();
    write("txtMemberName(4)", "Zoe");
    write("txtMemberAddress(4)", "Low Road 5");
    control<QSlider>("sldMembers").setValue(3);
    close();
    EXPECT_EQ(stored("members"), "3");
    EXPECT_EQ(stored("member5name"), "Zoe");
    EXPECT_EQ(stored("member5address"), "Low Road 5");
    EXPECT_EQ(stored("member6name"), "Member 6");
    open();
    EXPECT_EQ(shownTabs(), QStringList({"Member 1", "Member 2", "Member 3"}));
    control<QSlider>("sldMembers").setValue(5);
    EXPECT_EQ(shownTabs().last(), "Zoe");
    EXPECT_EQ(text("txtMemberAddress(4)"), "Low Road 5");
}

TEST_F(BandWindow, ANameRenamesItsTab) {
    open();
    auto& box = control<QLineEdit>("txtMemberName(0)");
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, "Jo & Al");
    EXPECT_EQ(tabs().tabText(0), "Jo && Al"); // "&" is a letter of the caption
    EXPECT_EQ(tabs().tabText(1), "Member 2");
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(tabs().tabText(0), "");
}

TEST_F(BandWindow, AStoredNameRenamesItsTabAlsoIfItIsEmpty) {
    store("member2name", "");
    store("member3name", "Zoe");
    open();
    EXPECT_EQ(shownTabs(), QStringList({"Member 1", "", "Zoe", "Member 4", "Member 5", "Member 6"}));
}

TEST_F(BandWindow, TheBandsNameIsTheTitleOnceItIsNew) {
    open();
    choose(2);
    auto& box = control<QLineEdit>("txtBandName");
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, "The [*] & Co");
    EXPECT_EQ(form->windowTitle(), "The [*][*] & Co"); // which the toolkit shows as one
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(form->windowTitle(), "");
    close();
    open();
    EXPECT_EQ(form->windowTitle(), "");
}

TEST_F(BandWindow, AStoredNameOfTheBandIsTheTitle) {
    store("bandname", "Nightbirds");
    open();
    EXPECT_EQ(form->windowTitle(), "Nightbirds");
    EXPECT_EQ(text("txtBandName"), "Nightbirds");
}

TEST_F(BandWindow, AStoredNameThatIsTheDefaultLeavesTheWindowsOwnTitle) {
    store("bandname", "<New Band>");
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Band Manager");
}

TEST_F(BandWindow, ClosingStoresEveryKeyWhateverHasChanged) {
    open();
    close();
    for (const QString& key : bandKeys())
        EXPECT_NE(stored(key), "(not stored)") << key.toStdString();
    EXPECT_EQ(stored("bandname"), "<New Band>");
    EXPECT_EQ(stored("banddetails"), "");
    EXPECT_EQ(stored("members"), "6");
    EXPECT_EQ(stored("member6equipment"), "<none specified>");
}

TEST_F(BandWindow, EveryTextComesBackFromTheSettings) {
    open();
    int number = 0;
    for (const MemberFieldRow& field : MemberFields)
        for (int member = 0; member < MostMembers; ++member)
            write(QString("%1(%2)").arg(field.box).arg(member), QString("text %1").arg(++number));
    write("txtBandName", "Nightbirds");
    control<QPlainTextEdit>("txtBandDetails").setPlainText("one\ntwo, \"three\"\n");
    control<QSlider>("sldMembers").setValue(2);
    close();
    const QStringList keys = bandKeys();
    for (int index = 1; index <= number; ++index)
        EXPECT_EQ(stored(keys[index + 2]), "text " + std::to_string(index));
    open();
    number = 0;
    for (const MemberFieldRow& field : MemberFields)
        for (int member = 0; member < MostMembers; ++member)
            EXPECT_EQ(text(QString("%1(%2)").arg(field.box).arg(member)), "text " + std::to_string(++number));
    EXPECT_EQ(text("txtBandName"), "Nightbirds");
    EXPECT_EQ(control<QPlainTextEdit>("txtBandDetails").toPlainText(), "one\ntwo, \"three\"\n");
    EXPECT_EQ(shownTabs(), QStringList({"text 1", "text 2"}));
}

TEST_F(BandWindow, ANumberOfMembersThatIsNoneIsSix) {
    for (const char* members : {"", "0", "7", "-3", "2.5", "many"}) {
        store("members", members);
        open();
        EXPECT_EQ(control<QSlider>("sldMembers").value(), 6) << members;
        EXPECT_EQ(shownTabs().size(), 6) << members;
        close();
        EXPECT_EQ(stored("members"), "6");
    }
}

TEST_F(BandWindow, TextsOfAnyLengthAndKindAreKept) {
    const QString all(100'000, 'x');
    const QString odd = QString::fromUtf8("a\nb\r\tЖ🎸<b>&\"\\") + QChar(0xA0) + QChar(0);
    store("member1name", all);
    store("bandname", all);
    store("banddetails", "hard" + QString(QChar(0xA0)) + "blank\n" + all);
    store("member2name", odd);
    store("member2address", odd);
    open();
    EXPECT_LT(form->minimumSizeHint().width(), 1366);
    EXPECT_LT(form->minimumSizeHint().height(), 700);
    EXPECT_EQ(form->windowTitle().size(), 1001);
    EXPECT_EQ(tabs().tabText(0).size(), 1001);
    close();
    EXPECT_EQ(stored("member1name"), all.toStdString());
    EXPECT_EQ(stored("bandname"), all.toStdString());
    EXPECT_EQ(stored("banddetails"), ("hard" + QString(QChar(0xA0)) + "blank\n" + all).toStdString());
    EXPECT_EQ(stored("member2name"), odd.toStdString());
    EXPECT_EQ(stored("member2address"), odd.toStdString());
}

TEST_F(BandWindow, MailGoesToTheMembersAddressAsItStands) {
    store("member3email", "zoe@band.example");
    open();
    press("sndEmail(0)");
    EXPECT_EQ(addresses.take(), QStringList{"mailto:<none specified>"});
    tabs().setCurrentIndex(2);
    press("sndEmail(2)");
    write("txtMemberEmail(2)", "");
    control("sndEmail(2)").setFocus();
    QTest::keyClick(&control("sndEmail(2)"), Qt::Key_Return);
    EXPECT_EQ(addresses.take(), QStringList({"mailto:zoe@band.example", "mailto:"}));
}

TEST_F(BandWindow, TheDefaultsAreWordsOfTheLanguage) {
    std::filesystem::copy_file(TABROVA_SOURCE_DIR "/assets/languages/German/lang.trl", folder() / "lang.trl");
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Band-Manager");
    EXPECT_EQ(tabs().tabText(0), "Mitglied 1");
    EXPECT_EQ(text("txtMemberName(5)"), "Mitglied 6");
    EXPECT_EQ(text("txtMemberEmail(5)"), "<keine Angabe>");
    EXPECT_EQ(text("txtBandName"), "<Neue Band>");
}

} // namespace
} // namespace tabrova::testing

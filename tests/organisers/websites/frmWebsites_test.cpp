// The website manager: saving, showing, opening and deleting entries, and what stands in its folder.
#include "organisers/websites/frmWebsites.h"

#include "organisers/websites/site_file.h"
#include "tests/workbench/tool_bench.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>

#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class WebsiteWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmWebsites>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& control(const char* name) {
        auto* found = form->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    std::string text(const char* box) { return control<QLineEdit>(box).text().toStdString(); }
    void write(const char* box, const QString& text) { control<QLineEdit>(box).setText(text); }
    std::string description() { return control<QLabel>("lblDesc").text().toStdString(); }
    void press(const char* button) { QTest::mouseClick(&control(button), Qt::LeftButton); }
    void click(const QString& name) {
        auto& rows = control<QListWidget>("sitesList");
        const auto found = rows.findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        rows.scrollToItem(found.first());
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(found.first()).center());
    }
    std::vector<std::string> sites() {
        std::vector<std::string> names;
        for (int row = 0; row < control<QListWidget>("sitesList").count(); ++row)
            names.push_back(control<QListWidget>("sitesList").item(row)->text().toStdString());
        return names;
    }
    fs::path file(const std::string& name) { return folder() / "sites" / name; }
    void bring(const std::string& name, const std::string& bytes) {
        fs::create_directories(folder() / "sites");
        std::ofstream(file(name), std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::string& name) {
        std::ifstream input(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    void save(const QString& name, const QString& address, const QString& about) {
        write("siteName", name);
        write("siteURL", address);
        write("txtDesc", about);
        press("Command1");
    }
    void expectBadName() {
        const auto asked = boxes.take();
        ASSERT_EQ(asked.size(), 1);
        EXPECT_EQ(asked.first().box.title, "Error");
        EXPECT_EQ(asked.first().box.text,
                  "This entry cannot be saved as the entry name contains invalid characters.");
        EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
    }

    std::unique_ptr<frmWebsites> form;
};

TEST_F(WebsiteWindow, OpensWithItsDefaultsAndMakesItsFolder) {
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Website Manager");
    EXPECT_TRUE(fs::is_directory(folder() / "sites"));
    EXPECT_EQ(text("siteURL"), "http://");
    EXPECT_EQ(text("siteName"), "New Site");
    EXPECT_EQ(text("txtDesc"), "This website is");
    EXPECT_EQ(text("SiteLoader"), "");
    EXPECT_EQ(description(), "");
    EXPECT_EQ(control<QPushButton>("Command1").text(), "Save this Entry");
    EXPECT_EQ(control<QPushButton>("Command2").text(), "Go to Selected Site");
    EXPECT_EQ(control<QPushButton>("Command3").text(), "Delete Selected Entry");
    EXPECT_EQ(form->focusWidget(), &control("sitesList"));
    EXPECT_TRUE(control<QLineEdit>("SiteLoader").isReadOnly());
    EXPECT_NE(form->findChild<QWidget*>("imgLogo"), nullptr);
}

TEST_F(WebsiteWindow, EveryBoxHasItsLabel) {
    open();
    for (const auto& [label, caption, box] : {std::tuple{"Label1(0)", "Description:", "lblDesc"},
                                              {"Label1(1)", "Description:", "txtDesc"},
                                              {"Label2(0)", "URL:", "SiteLoader"},
                                              {"Label2(1)", "URL:", "siteURL"},
                                              {"Label3", "Entry Name:", "siteName"}}) {
        EXPECT_EQ(control<QLabel>(label).text(), caption);
        EXPECT_EQ(control<QLabel>(label).buddy(), &control(box)) << label;
    }
}

TEST_F(WebsiteWindow, TheTabKeyFollowsTheReadingOrder) {
    open();
    for (const char* name :
         {"Command2", "Command3", "SiteLoader", "siteURL", "siteName", "txtDesc", "Command1", "sitesList"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form->focusWidget()->objectName(), name);
    }
}

TEST_F(WebsiteWindow, TheButtonsOfTheListDoNotTouch) {
    open();
    EXPECT_GE(control("Command3").y(), control("Command2").geometry().bottom() + 4);
    EXPECT_EQ(control("Command3").geometry().right(), control("Command1").geometry().right());
    EXPECT_EQ(control("SiteLoader").x(), control("siteURL").x());
}

TEST_F(WebsiteWindow, SavesTheAddressAndTheDescriptionAsTwoLines) {
    open();
    save("Lessons", "https://lessons.example/a?b=c", "free, and good");
    EXPECT_EQ(bytesOf("Lessons"), "https://lessons.example/a?b=c\r\nfree, and good\r\n");
    EXPECT_EQ(sites(), std::vector<std::string>{"Lessons"});
    EXPECT_EQ(text("SiteLoader"), "https://lessons.example/a?b=c");
    EXPECT_EQ(description(), "");
    EXPECT_EQ(text("siteURL"), "https://lessons.example/a?b=c"); // the boxes keep their texts
    EXPECT_EQ(text("siteName"), "Lessons");
    EXPECT_EQ(text("txtDesc"), "free, and good");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(WebsiteWindow, AnExistingNameIsReplacedWithoutAQuestion) {
    bring("Lessons", "http://old.example\r\nold\r\n");
    open();
    save("Lessons", "http://new.example", "new");
    EXPECT_EQ(bytesOf("Lessons"), "http://new.example\r\nnew\r\n");
    EXPECT_EQ(sites().size(), 1u);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(WebsiteWindow, EmptyTextsAreSavedToo) {
    open();
    save("Nothing", "", "");
    EXPECT_EQ(bytesOf("Nothing"), "\r\n\r\n");
}

TEST_F(WebsiteWindow, ABadNameIsToldAndNothingIsSavedButTheAddressIsShown) {
    fs::create_directories(file("folder"));
    open();
    for (const QString& name : {QString(), QString("."), QString(".."), QString("a/b"), QString("a\\b"),
                                QString("folder"), QString("a\nb"), QString(300, 'n')}) {
        write("SiteLoader", "before");
        save(name, "http://new.example", "new");
        EXPECT_EQ(text("SiteLoader"), "http://new.example");
        EXPECT_EQ(text("siteName"), name.toStdString());
        EXPECT_EQ(text("txtDesc"), "new");
        expectBadName();
    }
    EXPECT_TRUE(sites().empty());
    fs::remove_all(folder() / "sites");
    save("good", "http://new.example", "new");
    expectBadName();
}

TEST_F(WebsiteWindow, AClickShowsTheEntry) {
    bring("Comma", "http://a.example/1,2\r\nfree, \"good\", and new\r\nthird line\r\n");
    bring("One line", "http://one.example\r\n");
    bring("Open end", "http://open.example");
    bring("Empty", "");
    open();
    click("Comma");
    EXPECT_EQ(text("SiteLoader"), "http://a.example/1,2");
    EXPECT_EQ(description(), "free, \"good\", and new");
    click("One line");
    EXPECT_EQ(text("SiteLoader"), "http://one.example");
    EXPECT_EQ(description(), "");
    click("Comma");
    click("Open end");
    EXPECT_EQ(text("SiteLoader"), "http://open.example");
    EXPECT_EQ(description(), "");
    click("Comma");
    click("Empty");
    EXPECT_EQ(text("SiteLoader"), "");
    EXPECT_EQ(description(), "");
    EXPECT_EQ(text("siteURL"), "http://"); // the boxes of a new entry are their own
}

TEST_F(WebsiteWindow, AMoveByKeysShowsTheEntryToo) {
    bring("A", "http://a.example\r\n");
    bring("B", "http://b.example\r\n");
    open();
    click("A");
    QTest::keyClick(&control("sitesList"), Qt::Key_Down);
    EXPECT_EQ(text("SiteLoader"), "http://b.example");
}

TEST_F(WebsiteWindow, AnEntryThatCannotBeReadChangesNothing) {
    bring("A", "http://a.example\r\nabout\r\n");
    bring("B", "http://b.example\r\n");
    open();
    click("A");
    fs::remove(file("B"));
    click("B");
    EXPECT_EQ(text("SiteLoader"), "http://a.example");
    EXPECT_EQ(description(), "about");
    press("Command2");
    EXPECT_TRUE(addresses.take().isEmpty());
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(WebsiteWindow, GoOpensTheSelectedSiteAsTheFileHasItNow) {
    bring("A", "http://a.example\r\nabout\r\n");
    open();
    press("Command2");
    EXPECT_TRUE(addresses.take().isEmpty()); // nothing is selected
    click("A");
    press("Command2");
    EXPECT_EQ(addresses.take(), QStringList{"http://a.example"});
    bring("A", "www.new.example\r\nnew\r\n");
    press("Command2");
    EXPECT_EQ(addresses.take(), QStringList{"www.new.example"});
    EXPECT_EQ(text("SiteLoader"), "www.new.example");
    EXPECT_EQ(description(), "new");
    bring("A", "");
    press("Command2");
    EXPECT_EQ(addresses.take(), QStringList{""}); // nothing checks the address
}

TEST_F(WebsiteWindow, ASavedAddressAloneIsNotOpened) {
    open();
    save("A", "http://a.example", "about");
    press("Command2");
    EXPECT_TRUE(addresses.take().isEmpty());
}

TEST_F(WebsiteWindow, DeleteRemovesTheEntryWithoutAQuestionAndKeepsTheDescription) {
    bring("A", "http://a.example\r\nabout\r\n");
    bring("B", "http://b.example\r\n");
    open();
    click("A");
    press("Command3");
    EXPECT_FALSE(fs::exists(file("A")));
    EXPECT_EQ(sites(), std::vector<std::string>{"B"});
    EXPECT_EQ(text("SiteLoader"), "");
    EXPECT_EQ(description(), "about");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(WebsiteWindow, DeleteWithNothingSelectedDoesNothing) {
    bring("A", "http://a.example\r\n");
    open();
    save("B", "http://b.example", "b");
    press("Command3");
    EXPECT_EQ(sites().size(), 2u);
    EXPECT_EQ(text("SiteLoader"), "http://b.example");
}

TEST_F(WebsiteWindow, AFailureToDeleteIsPassedOver) {
    bring("A", "http://a.example\r\n");
    open();
    click("A");
    fs::remove(file("A"));
    fs::create_directories(file("A"));
    press("Command3");
    EXPECT_TRUE(fs::exists(file("A")));
    EXPECT_TRUE(sites().empty());
    EXPECT_EQ(text("SiteLoader"), "");
}

TEST_F(WebsiteWindow, TextsOfEveryLanguageComeBack) {
    open();
    for (const auto& [about, bytes] :
         {std::pair<std::string, std::string>{"café", "caf\xE9"},
          {"Уроки, é", "Уроки, é"},
          {"Ã©", "\xC3\xA9"}, // beside an é that makes the file one of the code page
          {"🎸", "🎸"}}) {
        save("Site", "http://a.example/é", QString::fromStdString(about));
        EXPECT_TRUE(bytesOf("Site").ends_with("\r\n" + bytes + "\r\n")) << about;
        click("Site");
        EXPECT_EQ(description(), about);
        EXPECT_EQ(text("SiteLoader"), "http://a.example/é");
    }
}

TEST_F(WebsiteWindow, ALineEndInABoxIsABlank) {
    open();
    save("Site", "http://a.example\r\n/x", "one\ntwo");
    EXPECT_EQ(bytesOf("Site"), "http://a.example /x\r\none two\r\n");
}

TEST_F(WebsiteWindow, FilesFromElsewhereAreNoHazard) {
    const std::string rawName = "raw \xFF\xFE";
    bring(rawName, "http://raw.example\r\n");
    bring("Huge", "http://" + std::string(2'000'000, 'a') + "\r\n" + std::string(3'000'000, 'd') + "\r\n");
    bring("Bold", "http://b.example\r\n<b>bold</b> <img src=x>\r\n");
    bring("Locked", "http://locked.example\r\n");
    fs::create_directories(file("folder"));
    mkfifo(file("pipe").c_str(), 0600);
    fs::permissions(file("Locked"), fs::perms::none);
    open();
    EXPECT_EQ(sites().size(), 4u); // neither the folder nor the pipe
    const QSize before = form->size();
    click("Bold");
    EXPECT_EQ(description(), "<b>bold</b> <img src=x>");
    EXPECT_EQ(control<QLabel>("lblDesc").textFormat(), Qt::PlainText);
    if (geteuid() != 0) {
        click("Locked");
        EXPECT_EQ(text("SiteLoader"), "http://b.example");
    }
    click("Huge");
    QApplication::processEvents();
    EXPECT_EQ(control<QLabel>("lblDesc").text().size(), LongestShownDescription + 1);
    EXPECT_EQ(form->size(), before);
    EXPECT_LT(form->minimumSizeHint().width(), 1000);
    auto& rows = control<QListWidget>("sitesList");
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                      rows.visualItemRect(rows.item(rows.count() - 1)).center());
    EXPECT_EQ(text("SiteLoader"), "http://raw.example");
    press("Command3");
    EXPECT_FALSE(fs::exists(file(rawName)));
}

TEST_F(WebsiteWindow, AFileInThePlaceOfTheFolderIsBorneWithoutAWord) {
    std::ofstream(folder() / "sites") << "x";
    open();
    EXPECT_TRUE(sites().empty());
    EXPECT_TRUE(boxes.take().isEmpty());
    press("Command2");
    press("Command3");
    save("A", "http://a.example", "about");
    expectBadName();
}

} // namespace
} // namespace tabrova::testing

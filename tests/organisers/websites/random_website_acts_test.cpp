// Random acts on the website manager, each compared with a plain model that was written on its own.
#include "organisers/websites/frmWebsites.h"
#include "tests/organisers/random_acts.h"
#include "tests/organisers/websites/plain_websites.h"

namespace tabrova::testing {
namespace {

const std::vector<std::string> RandomSites = {"New Site",    "Lessons", "hand",         "raw \xFF\xFE",
                                              "caf\xC3\xA9", "x, y",    "New Site.part"};

class RandomWebsiteActs : public RandomOrganiserActs<frmWebsites> {
  protected:
    RandomWebsiteActs() : RandomOrganiserActs("sites") {
        if (GetParam() % 2 == 0) return;
        QStringList lines;
        for (int line = 1; line <= 322; ++line)
            lines.append(QString::fromUtf8("\xD0\x96%1").arg(line));
        std::ofstream(folder() / "lang.trl") << lines.join("\r\n").toStdString();
        words = lines.mid(318);
    }
    void open() {
        load();
        model = std::make_unique<PlainWebsites>(room, blocked);
    }
    void act() {
        using A = RandomWebsiteActs;
        doOne<A>(*this,
                 {&A::setBox,  &A::setBox,  &A::setName, &A::setName, &A::save, &A::save,    &A::save,
                  &A::choose,  &A::choose,  &A::choose,  &A::choose,  &A::go,   &A::go,      &A::remove,
                  &A::outside, &A::outside, &A::outside, &A::outside, &A::view, &A::folders, &A::reopen});
    }
    ::testing::AssertionResult sameAsModel() {
        const auto asked = askedText(model->asked);
        const auto plain = plainText(model->asked);
        model->asked.clear();
        if (const auto result = same("what was asked", asked, plain); !result) return result;
        const QString opened = model->opened.join("\n");
        model->opened.clear();
        if (const auto result = same("what was opened", addresses.take().join("\n"), opened); !result)
            return result;
        if (const auto result = same("the window", shown(), wanted()); !result) return result;
        return sameRoom();
    }

  private:
    QString shown() {
        QString text = titleShown() + "\n";
        for (const char* box : {"siteURL", "siteName", "txtDesc", "SiteLoader"})
            text += QString(box) + " " + at<QLineEdit>(box).text() + "\n";
        text += at<QLabel>("lblDesc").text() + "\n" + rowsText("sitesList") + "\n";
        return text + captions({"lblDesc"});
    }
    QString wanted() const {
        QString text = words[0] + "\nsiteURL " + model->url + "\nsiteName " + model->name + "\ntxtDesc " +
                       model->about + "\nSiteLoader " + model->loader + "\n" + model->shownAbout + "\n" +
                       rowsText(model->list) + "\n";
        return text + captionText({words[1], words[2], words[3],
                                   "Description:", "Description:", "URL:", "URL:", "Entry Name:"});
    }

    void set(const char* name, QString& into, const QString& text) {
        told = std::string(name) + " " + text.left(30).toStdString();
        into = enter(at<QLineEdit>(name), text);
    }
    void setBox() {
        if (below(2) == 0) return set("siteURL", model->url, anyText());
        set("txtDesc", model->about, anyText());
    }
    void setName() {
        QString known = textOf(oneOf(RandomSites));
        if (known.startsWith("raw")) known = "New Site";
        set("siteName", model->name, below(3) == 0 ? anyText() : known);
    }
    void save() {
        told = "save " + model->name.left(30).toStdString();
        onDisk([this] { press("Command1"); });
        model->save();
        room.full = false;
    }
    void choose() {
        told = "choose";
        if (!chooseRow("sitesList", model->list)) return;
        told += " " + *model->list.chosen;
        model->select();
    }
    void go() {
        told = "go";
        press("Command2");
        model->go();
    }
    void remove() {
        told = "delete " + model->list.chosen.value_or("nothing");
        press("Command3");
        model->remove();
    }
    void outside() { changeFiles(RandomSites); }
    void view() {
        told = "into view";
        at("sitesList").hide();
        at("sitesList").show();
        model->list.readAgain(room);
    }
    void folders() {
        told = "folder";
        if (below(3) == 0)
            loseFolder();
        else
            giveFolderBack();
    }
    void reopen() {
        told = "reopen";
        unload();
        open();
    }

    QStringList words = {"Tabrova - Website Manager", "Save this Entry", "Go to Selected Site",
                         "Delete Selected Entry"};
    std::unique_ptr<PlainWebsites> model;
};

TEST_P(RandomWebsiteActs, LeaveTheWindowLikeThePlainModel) {
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

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWebsiteActs, ::testing::Range(1u, 5u));

} // namespace
} // namespace tabrova::testing

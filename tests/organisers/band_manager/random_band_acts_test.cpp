// Random acts on the band manager, each compared with a plain model that was written on its own.
#include "organisers/band_manager/frmBandManager.h"
#include "tests/organisers/band_manager/plain_band_manager.h"
#include "tests/organisers/random_acts.h"

#include <QPlainTextEdit>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>

namespace tabrova::testing {
namespace {

const QStringList RandomBoxes = {"txtMemberName",  "txtMemberAddress",    "txtMemberTelephone",
                                 "txtMemberEmail", "txtMemberInstrument", "txtMemberEquipment"};
const std::vector<std::string> RandomGigs = {"05-17-2024 -- Blue Note",
                                             "5-7-02 -- x",
                                             "hand",
                                             "a",
                                             "12345678901234",
                                             "raw \xFF\xFE 12-- \xE9t\xC3\xA9",
                                             "01-02-2003 -- caf\xC3\xA9 \xF0\x9F\x8E\xB8"};

class RandomBandActs : public RandomOrganiserActs<frmBandManager> {
  protected:
    RandomBandActs() : RandomOrganiserActs("gigs") {
        if (GetParam() % 2 == 0) return;
        QStringList lines;
        for (int line = 1; line <= 145; ++line)
            lines.append(QString::fromUtf8("\xD0\x96%1 & <b>").arg(line));
        std::ofstream(folder() / "lang.trl") << lines.join("\r\n").toStdString();
        words = PlainBandWords::of(lines.mid(117));
    }
    void open() {
        const QDate date = QDate::currentDate();
        PlainBandManager::today = {QString::number(date.month()), QString::number(date.day()),
                                   QString::number(date.year())};
        load();
        model = std::make_unique<PlainBandManager>(room, store, words, blocked);
    }
    void act() {
        using A = RandomBandActs;
        doOne<A>(*this,
                 {&A::option,     &A::option,    &A::slide,   &A::slide,      &A::chooseTab, &A::chooseTab,
                  &A::setMember,  &A::setMember, &A::setName, &A::mail,       &A::setBand,   &A::setBand,
                  &A::setDetails, &A::setGig,    &A::setGig,  &A::addGig,     &A::addGig,    &A::addGig,
                  &A::choose,     &A::choose,    &A::showGig, &A::showGig,    &A::showGig,   &A::remove,
                  &A::outside,    &A::outside,   &A::outside, &A::folderLost, &A::reopen,    &A::reopen});
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
        if (const auto result = same("the settings", stored(), wantedStore()); !result) return result;
        if (const auto result = same("the window", shown(), wanted()); !result) return result;
        return sameRoom();
    }

  private:
    QString stored() const {
        QString text;
        for (const QString& key : keys())
            text += key + "=" + settings->GetSetting("Band", key, "(none)") + "\n";
        return text;
    }
    QString wantedStore() const {
        QString text;
        for (const QString& key : keys()) {
            const auto found = store.find(key);
            text += key + "=" + (found == store.end() ? "(none)" : found->second) + "\n";
        }
        return text;
    }
    static QStringList keys() {
        QStringList all = {"bandname", "banddetails", "members"};
        for (int kind = 0; kind < 6; ++kind)
            for (int member = 0; member < 6; ++member)
                all.append(PlainBandManager::key(kind, member));
        return all;
    }

    QString shown() {
        auto& tabs = at<QTabWidget>("tbMembers");
        QString text = titleShown() + "\n";
        for (int index = 0; index < 3; ++index)
            text += at<QPushButton>(QString("mnuOption(%1)").arg(index)).isChecked() ? "*" : "-";
        for (const char* panel : {"tbMembers", "picGigs", "picBANDDETAILS"})
            text += at(panel).isVisible() ? " shows" : " hidden";
        for (const char* part : {"sldMembers", "Label1"})
            text += at(part).isVisible() ? " shows" : " hidden";
        text += "\nslider " + QString::number(at<QSlider>("sldMembers").value()) + " of " +
                QString::number(at<QSlider>("sldMembers").minimum()) + " to " +
                QString::number(at<QSlider>("sldMembers").maximum()) + "\ntab " +
                QString::number(tabs.currentIndex()) + " of " + QString::number(tabs.count()) + "\n";
        for (int tab = 0; tab < tabs.count(); ++tab) {
            QString caption = tabs.tabText(tab);
            caption.replace("&&", QChar(1)); // a letter
            text += caption.replace('&', QChar(2)).replace(QChar(1), '&') +
                    (tabs.isTabVisible(tab) ? " shows\n" : " hidden\n");
        }
        for (int member = 0; member < 6; ++member)
            for (const QString& box : RandomBoxes)
                text += at<QLineEdit>(box + QString("(%1)").arg(member)).text() + "\n";
        for (const char* box : {"txtBandName", "txtday", "txtmonth", "txtyear", "txtname", "txtmemo"})
            text += QString(box) + " " + at<QLineEdit>(box).text() + "\n";
        QString details = at<QPlainTextEdit>("txtBandDetails").document()->toRawText();
        text += details.replace(QChar::ParagraphSeparator, '\n') + "\n" + rowsText("File1") + "\n";
        return text + captions({"lblMembers"}) + "\n";
    }
    QString wanted() const {
        QString text = model->title + "\n";
        for (int index = 0; index < 3; ++index)
            text += index == model->option ? "*" : "-";
        for (const int index : {0, 1, 2, 0, 0})
            text += index == model->option ? " shows" : " hidden";
        text += "\nslider " + QString::number(model->members) + " of 1 to 6\ntab " +
                QString::number(model->tab) + " of 6\n";
        for (int tab = 0; tab < 6; ++tab)
            text += model->tabs[PlainBandManager::at(tab)] +
                    (model->tabShown[PlainBandManager::at(tab)] ? " shows\n" : " hidden\n");
        for (int member = 0; member < 6; ++member)
            for (int kind = 0; kind < 6; ++kind)
                text += model->boxes[PlainBandManager::at(kind)][PlainBandManager::at(member)] + "\n";
        text += "txtBandName " + model->bandName + "\ntxtday " + model->day + "\ntxtmonth " + model->month +
                "\ntxtyear " + model->year + "\ntxtname " + model->gigTitle + "\ntxtmemo " + model->memo +
                "\n";
        return text + model->details + "\n" + rowsText(model->list) + "\n" + wantedCaptions() + "\n";
    }
    QString wantedCaptions() const {
        QStringList all = {words.number,     words.bandName,   words.details,    words.gigs,
                           words.deleteGig,  words.frame,      words.month,      words.day,
                           words.year,       words.format,     words.memo,       words.addGig,
                           words.options[0], words.options[1], words.options[2], words.gigTitle};
        for (int member = 0; member < 6; ++member) {
            for (const QString& label : words.labels)
                all.append(label);
            all.append(words.send);
        }
        return captionText(all);
    }

    void option() {
        const int before = std::exchange(model->option, static_cast<int>(below(3)));
        if (model->option == 1 && before != 1) model->list.readAgain(room);
        told = "option " + std::to_string(model->option);
        auto& button = at<QPushButton>(QString("mnuOption(%1)").arg(model->option));
        below(2) == 0 ? button.click() : QTest::mouseClick(&button, Qt::LeftButton);
    }
    void slide() {
        auto& slider = at<QSlider>("sldMembers");
        int value = 1 + static_cast<int>(below(6));
        const std::size_t way = below(3);
        if (way == 0) {
            const bool up = below(2) == 0;
            value = std::clamp(model->members + (up ? 1 : -1), 1, 6);
            QTest::keyClick(&slider, up ? Qt::Key_Right : Qt::Key_Left);
        } else if (way == 1) {
            value = below(2) == 0 ? 1 : 6;
            QTest::keyClick(&slider, value == 1 ? Qt::Key_Home : Qt::Key_End);
        } else {
            slider.setValue(value);
        }
        told = "members " + std::to_string(value);
        model->setMembers(value);
    }
    void chooseTab() {
        const auto tab = static_cast<int>(below(static_cast<std::size_t>(model->members)));
        told = "tab " + std::to_string(tab);
        at<QTabWidget>("tbMembers").setCurrentIndex(tab);
        model->tab = tab;
    }
    void setMember() { setMemberBox(static_cast<int>(below(6))); }
    void setName() { setMemberBox(0); }
    void setMemberBox(int kind) {
        const auto member = static_cast<int>(below(6));
        const QString text = anyText();
        told = "member " + std::to_string(member) + "," + std::to_string(kind) + " " +
               text.left(30).toStdString();
        auto& box = at<QLineEdit>(RandomBoxes[kind] + QString("(%1)").arg(member));
        model->setBox(kind, member, enter(box, text));
    }
    void mail() {
        const auto member = static_cast<int>(below(6));
        told = "mail to " + std::to_string(member);
        press(QString("sndEmail(%1)").arg(member));
        model->sendEmail(member);
    }
    void setBand() {
        const QString text = anyText();
        told = "band " + text.left(30).toStdString();
        if (text == model->bandName) return;
        model->setBandName(enter(at<QLineEdit>("txtBandName"), text));
    }
    void setDetails() {
        QString text = anyText();
        told = "details " + text.left(30).toStdString();
        auto& box = at<QPlainTextEdit>("txtBandDetails");
        if (below(2) == 0) {
            box.selectAll();
            box.insertPlainText(text);
        } else {
            box.setPlainText(text);
        }
        model->details = text.replace("\r\n", "\n");
    }
    void setGig() {
        const std::pair<const char*, QString*> all[] = {{"txtday", &model->day},
                                                        {"txtmonth", &model->month},
                                                        {"txtyear", &model->year},
                                                        {"txtname", &model->gigTitle},
                                                        {"txtmemo", &model->memo}};
        const auto& [name, into] = all[below(5)];
        const QString text = below(3) == 0   ? anyText()
                             : below(4) == 0 ? QString()
                                             : QString::number(below(3000));
        told = std::string(name) + " " + text.left(30).toStdString();
        *into = enter(at<QLineEdit>(name), text);
    }
    void addGig() {
        told = "add";
        if (below(3) != 0)
            for (const auto& [name, into] : {std::pair{"txtday", &model->day},
                                             {"txtmonth", &model->month},
                                             {"txtyear", &model->year},
                                             {"txtname", &model->gigTitle}})
                if (into->size() > 50 || into->contains('/') || into->contains('\\') ||
                    into->contains('\n') || into->contains('\t'))
                    *into = enter(at<QLineEdit>(name), "7");
        if (below(2) == 0) model->memo = enter(at<QLineEdit>("txtmemo"), anyText());
        onDisk([this] { press("Command6"); });
        model->AddGig();
        room.full = false;
    }
    void choose() {
        told = "choose";
        if (chooseRow("File1", model->list)) told += " " + *model->list.chosen;
    }
    void showGig() {
        told = "show";
        const auto row = chooseRow("File1", model->list);
        if (!row && !model->list.chosen) return;
        told += " " + *model->list.chosen;
        if (below(2) == 0)
            QTest::keyClick(&at("File1"), Qt::Key_Return);
        else
            clickRow("File1", static_cast<std::size_t>(model->list.row()), true);
        model->showGig();
    }
    void remove() {
        told = "delete " + model->list.chosen.value_or("nothing");
        press("Command1");
        model->deleteGig();
    }
    void outside() { changeFiles(RandomGigs); }
    void folderLost() {
        if (below(8) == 0) loseFolder();
    }
    void reopen() {
        told = "reopen";
        unload();
        model->close();
        if (const auto result = same("the settings", stored(), wantedStore()); !result)
            ADD_FAILURE() << result.message();
        if (below(3) != 0) giveFolderBack();
        if (below(3) == 0) changeSettings();
        open();
    }
    void changeSettings() {
        told += " with other settings";
        const QStringList all = keys();
        for (std::size_t count = below(4); count > 0; --count) {
            const QString key = all[static_cast<qsizetype>(below(33))];
            QString value = anyText();
            if (key == "banddetails") value.replace("\r\n", "\n");
            change(key, value);
        }
        change("members", oneOf<QString>({"1", "2", "3", "4", "5", "6", "0", "7", "-1", "", "x", "3.5", "1e0",
                                          "99999999999", "0x2"}));
    }
    void change(const QString& key, const QString& value) {
        settings->SaveSetting("Band", key, value);
        store[key] = value;
    }

    PlainBandWords words;
    PlainBandManager::Store store;
    std::unique_ptr<PlainBandManager> model;
};

TEST_P(RandomBandActs, LeaveTheWindowLikeThePlainModel) {
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

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBandActs, ::testing::Range(1u, 5u));

} // namespace
} // namespace tabrova::testing

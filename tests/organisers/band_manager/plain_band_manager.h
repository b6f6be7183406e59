// A plain, slow model of the band manager's window: what it shows, keeps, asks, opens and writes.
#pragma once

#include "platform/paths.h"
#include "tests/organisers/plain_room.h"

#include <array>

namespace tabrova::testing {

// The window's words in the order of the language file.
struct PlainBandWords {
    QString title = "Tabrova - Band Manager";
    std::array<QString, 3> options = {"Members", "Gig Log ", "Band Details"};
    QString number = "Number of Members:";
    std::array<QString, 6> labels = {"Member Name:",    "Address:",           "Telephone:",
                                     "E-Mail Address:", "Instrument Played:", "Equipment Owned:"};
    QString send = "Send E-Mail", bandName = "Name of Band:", details = "Additional Details:";
    QString gigs = "Gigs: (Double Click to Show)", deleteGig = "Delete Selected Gig";
    QString frame = "Gig Addition Manager", month = "Month:", day = "Day:", year = "Year:";
    QString format = "(Format = MM DD YYYY)", gigTitle = "Title:", memo = "Memo:", addGig = "Add Gig";
    QString member = "Member", newBand = "<New Band>", none = "<none specified>";
    QString badGig = "This gig cannot be added. Please check its date and its title.";

    // From the lines that stand for this window.
    static PlainBandWords of(const QStringList& lines) {
        PlainBandWords words;
        int line = 0;
        const auto next = [&](QString& word) { word = lines[line++]; };
        next(words.title);
        for (QString& option : words.options)
            next(option);
        next(words.number);
        for (QString& label : words.labels)
            next(label);
        for (QString* word :
             {&words.send, &words.bandName, &words.details, &words.gigs, &words.deleteGig, &words.frame,
              &words.month, &words.day, &words.year, &words.format, &words.gigTitle, &words.memo,
              &words.addGig, &words.member, &words.newBand, &words.none, &words.badGig})
            next(*word);
        return words;
    }
};

inline const std::array<QString, 6> PlainMemberKeys = {"name",  "address",    "telephone",
                                                       "email", "instrument", "equipment"};

struct PlainBandManager {
    using Store = std::map<QString, QString>;

    PlainBandManager(PlainRoom& inRoom, Store& inStore, PlainBandWords inWords, bool blocked)
        : room(inRoom), store(inStore), words(std::move(inWords)), roomBlocked(blocked) {
        title = words.title;
        bandName = words.newBand;
        for (int each = 0; each < 6; ++each) {
            tabs[at(each)] = words.member + " " + QString::number(each + 1);
            tabShown[at(each)] = true;
        }
        ResetGigDate();
        list.readAgain(room);
        setBandName(read("bandname", bandName));
        details = read("banddetails", "");
        const QString number = read("members", "6");
        const bool serves = number.size() == 1 && number[0] >= '1' && number[0] <= '6';
        setMembers(serves ? number.toInt() : 6);
        for (int kind = 0; kind < 6; ++kind)
            for (int member = 0; member < 6; ++member)
                setBox(kind, member, read(key(kind, member), kind == 0 ? tabs[at(member)] : words.none));
    }

    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    static QString key(int kind, int member) {
        return "member" + QString::number(member + 1) + PlainMemberKeys[at(kind)];
    }
    QString read(const QString& name, const QString& otherwise) const {
        const auto found = store.find(name);
        return found == store.end() ? otherwise : found->second;
    }
    void setBandName(const QString& text) {
        if (text == bandName) return;
        bandName = text;
        title = PlainText::shortened(PlainText::inOneLine(text), 1000);
    }
    void setBox(int kind, int member, const QString& text) {
        boxes[at(kind)][at(member)] = text;
        if (kind == 0) tabs[at(member)] = PlainText::shortened(PlainText::inOneLine(text), 1000);
    }
    void setMembers(int value) {
        if (value == members) return;
        members = value;
        tab = 0;
        for (int each = 0; each < 6; ++each)
            tabShown[at(each)] = each < value;
    }
    void sendEmail(int member) { opened.append("mailto:" + boxes[3][at(member)]); }
    void ResetGigDate() {
        day = today[1], month = today[0], year = today[2];
        room.there = room.there || !roomBlocked;
        if (day.size() == 1) day = "0" + day;
        if (month.size() == 1) month = "0" + month;
    }
    void AddGig() {
        const QString name = month + "-" + day + "-" + year + " -- " + gigTitle;
        if (!room.write(name.toStdString(), PlainText::encoded(PlainText::inOneLine(memo) + "\r\n"))) {
            asked.push_back({"Tabrova for Windows", words.badGig, "exclamation", "ok"});
            return;
        }
        list.readAgain(room);
        ResetGigDate();
        gigTitle = memo = "";
    }
    void deleteGig() {
        if (list.chosen) room.remove(*list.chosen);
        list.readAgain(room);
    }
    void showGig() {
        if (!list.chosen) return;
        const std::string* bytes = room.file(*list.chosen);
        if (!bytes || bytes->empty()) return;
        const std::u32string name = textOf(*list.chosen).toStdU32String();
        const auto part = [&](std::size_t from, std::size_t count) {
            return QString::fromStdU32String(from < name.size() ? name.substr(from, count) : U"");
        };
        const QString heading = part(0, 2) + "/" + part(3, 2) + "/" + part(6, 4) + ": " + part(13, 999);
        const QString memoText = PlainText::firstItem(PlainText::decoded(*bytes));
        asked.push_back({heading, PlainText::shortened(memoText, 1000), "any", "ok"});
    }
    void close() {
        store["bandname"] = bandName;
        store["banddetails"] = details;
        store["members"] = QString::number(members);
        for (int kind = 0; kind < 6; ++kind)
            for (int member = 0; member < 6; ++member)
                store[key(kind, member)] = boxes[at(kind)][at(member)];
    }

    static inline std::array<QString, 3> today; // month, day, year as decimal text

    PlainRoom& room;
    Store& store;
    PlainBandWords words;
    bool roomBlocked = false;
    PlainRoomList list;
    QString title, bandName, details, month, day, year, gigTitle, memo;
    std::array<std::array<QString, 6>, 6> boxes; // by kind and member
    std::array<QString, 6> tabs;
    std::array<bool, 6> tabShown{};
    int members = 6, tab = 0, option = 0;
    QStringList opened;
    std::vector<PlainAsked> asked;
};

} // namespace tabrova::testing

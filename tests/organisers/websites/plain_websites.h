// A plain, slow model of the website manager's window: what it shows, asks, opens and writes.
#pragma once

#include "tests/organisers/plain_room.h"

namespace tabrova::testing {

struct PlainWebsites {
    explicit PlainWebsites(PlainRoom& inRoom, bool blocked) : room(inRoom) {
        room.there = room.there || !blocked;
        list.readAgain(room);
    }

    void save() {
        loader = url;
        if (!room.write(name.toStdString(), PlainText::encoded(PlainText::inOneLine(url) + "\r\n" +
                                                               PlainText::inOneLine(about) + "\r\n"))) {
            asked.push_back({"Error",
                             "This entry cannot be saved as the entry name contains invalid characters.",
                             "exclamation", "ok"});
            return;
        }
        list.readAgain(room);
    }
    bool select() {
        const std::string* bytes = list.chosen ? room.file(*list.chosen) : nullptr;
        if (!bytes) return false;
        QStringList lines = PlainText::lines(PlainText::decoded(*bytes));
        lines.resize(2);
        loader = lines[0].left(32'767); // what a box for one line holds
        shownAbout = PlainText::shortened(lines[1], 10'000);
        return true;
    }
    void go() {
        if (select()) opened.append(loader);
    }
    void remove() {
        if (!list.chosen) return;
        room.remove(*list.chosen);
        list.readAgain(room);
        loader = "";
    }

    PlainRoom& room;
    PlainRoomList list;
    QString url = "http://", name = "New Site", about = "This website is";
    QString loader, shownAbout;
    QStringList opened;
    std::vector<PlainAsked> asked;
};

} // namespace tabrova::testing

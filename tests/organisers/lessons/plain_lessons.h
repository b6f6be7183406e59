// A plain, slow model of the window of guitar lessons: what it shows, asks, copies and removes.
#pragma once

#include "platform/paths.h"
#include "tests/organisers/plain_room.h"

#include <cmath>

namespace tabrova::testing {

struct PlainLessons {
    explicit PlainLessons(PlainRoom& inRoom) : room(inRoom) {
        list.ending = ".rtf";
        list.readAgain(room);
    }

    // Whether the chosen lesson could be read. What the view then shows is known of whole lessons alone.
    bool show() {
        const std::string* bytes = list.chosen ? room.file(*list.chosen) : nullptr;
        if (!bytes) return false;
        panel = false;
        viewFocus = true;
        return true;
    }
    void bringBack() {
        if (!panel) list.readAgain(room);
        panel = true;
    }
    // `from` is what stands at the chosen path; nothing for a cancelled chooser.
    void install(const std::string& bareName, const PlainRoom::Entry* from, bool itself) {
        if (!from || from->kind != PlainRoom::Kind::File || !room.there) return;
        const auto old = room.entries.find(bareName);
        if (old != room.entries.end() && old->second.kind != PlainRoom::Kind::File) return;
        if (!itself) {
            if (room.full && !from->bytes.empty()) return;
            room.entries[bareName] = *from;
        }
        asked.push_back({"Done", "The Lesson: " + textOf(bareName) + " has been installed successfully.",
                         "information", "ok"});
        list.readAgain(room);
    }
    void uninstall(bool yes) {
        if (!list.chosen) return;
        asked.push_back({"Uninstall Lesson",
                         "Are you sure you wish to uninstall the " + textOf(*list.chosen) + " lesson?", "any",
                         "yes no"});
        if (yes) room.remove(*list.chosen);
        list.readAgain(room);
    }
    // Inner size in pixels, of 15 twips each.
    void resize(int width, int height) {
        if (height * 15 <= 1000 || width * 15 <= 2000) return;
        viewWidth = static_cast<int>(std::lround(width - 1780 / 15.0));
        viewHeight = static_cast<int>(std::lround(height - 360 / 15.0));
    }

    PlainRoom& room;
    PlainRoomList list;
    bool panel = true, viewFocus = false;
    int viewWidth = 0, viewHeight = 0;
    std::vector<PlainAsked> asked;
};

} // namespace tabrova::testing

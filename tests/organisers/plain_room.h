// A plain model of a folder beside the program with its small files, and of the texts that stand in them.
#pragma once

#include "tests/tools/chord_manager/plain_chord_tables.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <vector>

namespace tabrova::testing {

// Texts are stored in the code page if it holds them, else in UTF-8, and so are those whose code page bytes
// would read as UTF-8.
struct PlainText {
    static const std::vector<int>& upperHalf() {
        static const std::vector<int> codes = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                               0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                               0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};
        return codes;
    }
    static int codeOf(unsigned char byte) {
        return byte < 0x80 || byte > 0x9F ? byte : upperHalf()[byte - 0x80u];
    }
    static bool isUtf8(const std::string& bytes) {
        return QString::fromUtf8(bytes.c_str(), static_cast<int>(bytes.size())).toStdString() == bytes;
    }
    static QString decoded(const std::string& bytes) {
        if (isUtf8(bytes)) return QString::fromStdString(bytes);
        QString text;
        for (const char byte : bytes)
            text += QChar(codeOf(static_cast<unsigned char>(byte)));
        return text;
    }
    static std::string encoded(const QString& text) {
        std::string bytes;
        for (const QChar character : text) {
            int byte = -1;
            for (int each = 255; each >= 0; --each)
                if (codeOf(static_cast<unsigned char>(each)) == character.unicode()) byte = each;
            if (byte < 0) return text.toStdString();
            bytes += static_cast<char>(byte);
        }
        return isUtf8(bytes) ? text.toStdString() : bytes;
    }
    // A line ends in CR LF, CR or LF.
    static QStringList lines(const QString& text) {
        QString plain = text;
        QStringList all = plain.replace("\r\n", "\n").replace('\r', '\n').split('\n');
        if (all.last().isEmpty()) all.removeLast();
        return all;
    }
    static QString inOneLine(QString text) {
        return text.replace("\r\n", " ").replace('\r', ' ').replace('\n', ' ');
    }
    static QString shortened(const QString& text, qsizetype most) {
        return text.size() <= most ? text : text.left(most) + QChar(0x2026);
    }
    // The first item: blanks before it are passed over, it ends at a line end or at a comma outside quotes.
    static QString firstItem(const QString& text) {
        QString item;
        bool quoted = false;
        for (const QChar character : text) {
            if (character == '\r' || character == '\n' || (character == ',' && !quoted)) break;
            if (character == '"') quoted = !quoted;
            if (!item.isEmpty() || (character != ' ' && character != '\t')) item += character;
        }
        if (!item.startsWith('"')) return item;
        const qsizetype end = item.indexOf('"', 1);
        return end < 0 ? item.mid(1) : item.mid(1, end - 1);
    }
};

inline char32_t plainSmallLetter(char32_t letter) {
    return letter >= U'A' && letter <= U'Z' ? letter + 32 : letter;
}

struct PlainRoom {
    enum class Kind { File, Folder, Pipe };
    struct Entry {
        Kind kind = Kind::File;
        std::string bytes;
        bool operator==(const Entry&) const = default;
    };

    bool there = false; // the folder itself
    bool full = false;  // no byte can be written
    std::map<std::string, Entry> entries;

    const std::string* file(const std::string& name) const {
        const auto found = entries.find(name);
        return found != entries.end() && found->second.kind == Kind::File ? &found->second.bytes : nullptr;
    }
    // False if no such file can be made. What is written in part is removed.
    bool write(const std::string& name, const std::string& bytes) {
        if (!there || !plainNameServes(name)) return false;
        const std::string* old = file(name);
        if (!old && entries.contains(name)) return false;
        if (old && *old == bytes) return true;
        if (full) return entries.erase(name), false;
        entries[name] = {Kind::File, bytes};
        return true;
    }
    // Anything but a folder.
    void remove(const std::string& name) {
        const auto found = entries.find(name);
        if (found != entries.end() && found->second.kind != Kind::Folder) entries.erase(found);
    }
    static PlainRoom of(const std::filesystem::path& folder) {
        PlainRoom room;
        room.there = std::filesystem::is_directory(folder);
        if (!room.there) return room;
        for (const auto& each : std::filesystem::directory_iterator(folder)) {
            Entry entry;
            if (each.is_directory()) entry.kind = Kind::Folder;
            if (each.is_fifo()) entry.kind = Kind::Pipe;
            if (each.is_regular_file()) {
                std::ifstream input(each.path(), std::ios::binary);
                entry.bytes.assign(std::istreambuf_iterator<char>(input), {});
            }
            room.entries[each.path().filename().string()] = entry;
        }
        return room;
    }
    std::string described() const {
        std::string text = there ? "" : "no folder";
        for (const auto& [name, entry] : entries) {
            static const char* const kinds[] = {" file ", " folder ", " pipe "};
            const std::string& bytes = entry.bytes;
            text += name + kinds[static_cast<int>(entry.kind)] + std::to_string(bytes.size()) + " " +
                    bytes.substr(0, 200) + std::to_string(std::hash<std::string>()(bytes)) + "|";
        }
        return text;
    }
};

// A list of the room's files: what it has read, not what lies there now.
struct PlainRoomList {
    std::string ending;
    std::vector<std::string> rows;
    std::optional<std::string> chosen;

    void readAgain(const PlainRoom& room) {
        rows.clear();
        for (const auto& [name, entry] : room.entries)
            if (entry.kind == PlainRoom::Kind::File && endsSo(name)) rows.push_back(name);
        std::ranges::stable_sort(rows, {}, [](const std::string& name) {
            std::u32string small = QString::fromStdString(name).toStdU32String();
            std::ranges::transform(small, small.begin(), plainSmallLetter);
            return small;
        });
        if (chosen && std::ranges::find(rows, *chosen) == rows.end()) chosen.reset();
    }
    bool endsSo(const std::string& name) const {
        if (name.size() < ending.size()) return false;
        std::string tail = name.substr(name.size() - ending.size());
        for (char& letter : tail)
            letter = static_cast<char>(plainSmallLetter(static_cast<unsigned char>(letter)));
        return tail == ending;
    }
    int row() const {
        return chosen ? static_cast<int>(std::ranges::find(rows, *chosen) - rows.begin()) : -1;
    }
};

struct PlainAsked {
    QString title, text, icon, buttons; // the icon "any" stands for every one
};

} // namespace tabrova::testing

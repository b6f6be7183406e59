// Documents whose reading fails, one of every kind, as the bytes of their files.
#pragma once

#include <string>
#include <vector>

namespace tabrova::testing {

struct DamagedDocument {
    const char* kind;
    std::string bytes;
};

inline std::string damagedHeader(const std::string& tracks, const std::string& staves) {
    return "Song\r\nMe\r\n1\r\n 480 \r\n\r\nFalse\r\n" + tracks + "\r\n 1 \r\n 1 \r\n" + staves + "\r\n";
}

inline std::string damagedTracks(int count) {
    std::string lines;
    for (int track = 0; track < count; ++track)
        lines += "Track\r\n100\r\n" + std::string(track % 2 == 0 ? "True" : "False") + "\r\n30\r\n";
    return lines;
}

inline std::string repeated(const std::string& line, int times) {
    std::string lines;
    for (int each = 0; each < times; ++each)
        lines += line + "\r\n";
    return lines;
}

// Ends behind its line 7, which says that there are so many tracks.
inline std::string endsBehindTrackCount(const std::string& tracks) {
    return "Song\r\nMe\r\n1\r\n 480 \r\n\r\nFalse\r\n" + tracks + "\r\n";
}

inline std::vector<DamagedDocument> damagedDocuments() {
    std::vector<DamagedDocument> list = {
        {"no bytes at all", ""},
        {"bytes that are no text", std::string("\x7F\x45\x4C\x46\x00\x01\r\n\xFF\xFE\r\n\x00\r\n", 15)},
        {"a speed that is no number", "Song\r\nMe\r\n1\r\nfast\r\n"},
        {"notes of several lines", "Song\r\nMe\r\n1\r\n 480 \r\nfirst\r\nsecond\r\nFalse\r\n 1 \r\n"},
        {"no number of staves", damagedHeader(" 3 ", "many")},
        {"no tracks after their number", damagedHeader(" 3 ", " 2 ")},
        {"fewer tracks than it says", damagedHeader(" 5 ", " 2 ") + damagedTracks(2) + "Track\r\n"},
        {"a track that is neither guitar nor percussion",
         damagedHeader(" 2 ", " 2 ") + "A\r\n90\r\nmaybe\r\n24\r\n"},
        {"no staves", damagedHeader(" 2 ", " 0 ") + damagedTracks(2)},
        {"fewer than no staves", damagedHeader(" 2 ", "-7 ") + damagedTracks(2)},
        {"more staves than fit", damagedHeader(" 800 ", " 32767 ") + damagedTracks(800)},
        {"half a tuning", damagedHeader(" 2 ", " 2 ") + damagedTracks(2) + repeated(" 13 ", 7)},
        {"a tuning that is no number", damagedHeader(" 2 ", " 2 ") + damagedTracks(2) + repeated("x", 12)},
        {"half of its notes",
         damagedHeader(" 3 ", " 3 ") + damagedTracks(3) + repeated(" 13 ", 18) + repeated("7", 500)},
        {"no bar marks", damagedHeader(" 1 ", " 2 ") + damagedTracks(1) + repeated(" 13 ", 6) +
                             repeated("12", 384) + repeated("h", 384) + repeated("r3", 20)},
        {"absurd texts and a slow speed",
         "Song\r\nMe\r\n1\r\n 1 \r\n\r\nTrue\r\n 2 \r\n 1 \r\n 1 \r\n 1 \r\n" + damagedTracks(2) +
             repeated(" 32767 ", 12) + repeated("99999999999", 384) + repeated("p9.9", 100)},
    };
    for (const char* tracks : {" 0 ", "-1 ", " 2 ", " 3 ", " 1000 ", " 32767 ", "-32768 "})
        list.push_back({"an end behind the number of tracks", endsBehindTrackCount(tracks)});
    return list;
}

} // namespace tabrova::testing

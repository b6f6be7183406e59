// What a file chooser proposes for an export.
#include "workbench/proposed_name.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(ProposedName, IsTheDocumentsWithTheExtensionOfTheExport) {
    EXPECT_EQ(proposedName("/music/song.tr3", "mid"), "/music/song.mid");
    EXPECT_EQ(proposedName("song.v2.tr3", "txt"), "song.v2.txt");
    EXPECT_EQ(proposedName("/my.music/song", "mid"), "/my.music/song.mid");
    EXPECT_EQ(proposedName("/music/.hidden", "mid"), "/music/.hidden.mid");
}

TEST(ProposedName, IsNothingWithoutADocumentsName) {
    EXPECT_EQ(proposedName("", "mid"), "");
    EXPECT_EQ(proposedName("/music/", "mid"), "");
}

// Bytes of a name that are no text come through.
TEST(ProposedName, KeepsEveryCharacter) {
    const QString odd = QString("/a") + QChar(0xDCFF) + "/b" + QChar(0xDC80);
    EXPECT_EQ(proposedName(odd + ".tr3", "mid"), odd + ".mid");
}

} // namespace
} // namespace tabrova

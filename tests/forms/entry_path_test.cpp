// Where the file of a new entry stands.
#include "forms/entry_path.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(NewEntryPath, IsInTheFolderUnderTheName) {
    EXPECT_EQ(newEntryPath("/home/chords", "F#m7 (barre)"), "/home/chords/F#m7 (barre)");
    EXPECT_EQ(newEntryPath("/home/chords", QString::fromUtf8("Ré")), "/home/chords/R\xC3\xA9");
}

TEST(NewEntryPath, IsNowhereForANameThatNoFileMayBeGiven) {
    for (const char* name : {"", ".", "..", "../gigs", "/etc/passwd", "C\\G", "line\nend"})
        EXPECT_EQ(newEntryPath("/home/chords", name), std::nullopt) << name;
}

} // namespace
} // namespace tabrova

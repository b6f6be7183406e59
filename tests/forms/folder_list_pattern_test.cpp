// A list that shows only the entries whose names fit.
#include "tests/forms/folder_lists.h"

namespace tabrova {
namespace {

class FolderListPattern : public testing::FolderListTest {
  protected:
    FolderListPattern() {
        files({"C", "Cm", "cm7", "D", "F#m7 (barre)"});
        list.showFolder(folder());
    }
};

TEST_F(FolderListPattern, ShowsTheNamesThatFitAndAgainAllOfThem) {
    list.setPattern("C*");
    EXPECT_EQ(rows(), QStringList({"C", "Cm", "cm7"}));
    list.setPattern("F#m7 (*");
    EXPECT_EQ(rows(), QStringList({"F#m7 (barre)"}));
    list.setPattern("none of them*");
    EXPECT_TRUE(rows().isEmpty());
    list.setPattern("*");
    EXPECT_EQ(rows().size(), 5);
    EXPECT_EQ(clicks, 0);
}

TEST_F(FolderListPattern, HoldsForWhatComesLater) {
    list.setPattern("C*");
    files({"C13", "E"});
    list.readAgain();
    EXPECT_EQ(rows(), QStringList({"C", "C13", "Cm", "cm7"}));
}

TEST_F(FolderListPattern, KeepsTheChosenRowIfItStillFits) {
    list.chooseName("Cm");
    list.setPattern("C*");
    EXPECT_EQ(list.chosenName(), "Cm");
    list.setPattern("D*");
    EXPECT_EQ(list.chosenName(), "");
}

} // namespace
} // namespace tabrova

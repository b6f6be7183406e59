// The keys of the band, and how many members a stored text means.
#include "organisers/band_manager/band_record.h"

#include <QSet>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(BandRecord, HasSixTextsOfEachMemberBesideThoseOfTheBand) {
    const QStringList keys = bandKeys();
    EXPECT_EQ(keys.size(), 39);
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), 39);
    EXPECT_EQ(keys.mid(0, 4), QStringList({"bandname", "banddetails", "members", "member1name"}));
    const QStringList fields = {"name", "address", "telephone", "email", "instrument", "equipment"};
    for (int field = 0; field < 6; ++field)
        for (int member = 1; member <= 6; ++member)
            EXPECT_EQ(keys[3 + field * 6 + member - 1], QString("member%1").arg(member) + fields[field]);
}

TEST(BandRecord, ANumberOfMembersIsAWholeOneFromOneToSix) {
    for (int members = 1; members <= 6; ++members)
        EXPECT_EQ(membersOf(QString::number(members)), members);
    for (const char* other : {"", "0", "7", "-1", "3.5", "three", "99999999999999999999", "1e0", "0x3"})
        EXPECT_EQ(membersOf(other), 6) << other;
}

} // namespace
} // namespace tabrova

#include "organisers/band_manager/band_record.h"

namespace tabrova {

QString memberKey(int member, const MemberFieldRow& field) {
    return QString("member%1%2").arg(member + 1).arg(field.key);
}

QStringList bandKeys() {
    QStringList keys = {BandNameKey, BandDetailsKey, MembersKey};
    for (const MemberFieldRow& field : MemberFields)
        for (int member = 0; member < MostMembers; ++member)
            keys.append(memberKey(member, field));
    return keys;
}

int membersOf(const QString& stored) {
    bool whole = false;
    const int members = stored.toInt(&whole);
    return whole && members >= 1 && members <= MostMembers ? members : MostMembers;
}

} // namespace tabrova

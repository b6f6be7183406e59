// The band as the settings keep it: texts, each under a key of its own, and always six members' worth of
// them, however many are shown.
#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace tabrova {

constexpr int MostMembers = 6;

inline constexpr char BandSection[] = "Band";
inline constexpr char BandNameKey[] = "bandname";
inline constexpr char BandDetailsKey[] = "banddetails";
inline constexpr char MembersKey[] = "members";

// What is kept of each member, in the order in which it is read and stands on the page.
enum class MemberField { Name, Address, Telephone, Email, Instrument, Equipment };
constexpr std::size_t MemberFieldCount = 6;

struct MemberFieldRow {
    MemberField field;
    const char* key;   // of the settings, behind "member" and the member's number
    const char* box;   // the controls on the member's page
    const char* label; //
};

constexpr std::array<MemberFieldRow, MemberFieldCount> MemberFields = {{
    {MemberField::Name, "name", "txtMemberName", "Label2"},
    {MemberField::Address, "address", "txtMemberAddress", "Label3"},
    {MemberField::Telephone, "telephone", "txtMemberTelephone", "Label4"},
    {MemberField::Email, "email", "txtMemberEmail", "Label5"},
    {MemberField::Instrument, "instrument", "txtMemberInstrument", "Label6"},
    {MemberField::Equipment, "equipment", "txtMemberEquipment", "Label7"},
}};

// Members count from 0, their keys from 1.
QString memberKey(int member, const MemberFieldRow& field);

// All keys, in the order in which they are read.
QStringList bandKeys();

// The number of members that a stored text gives: all, if it is no whole number from 1 on that is possible.
int membersOf(const QString& stored);

} // namespace tabrova

#include "organisers/band_manager/gig_file.h"

#include "core/files/entry_file.h"
#include "core/text/stored_text.h"
#include "forms/text_edges.h"

namespace tabrova {

namespace {

constexpr qsizetype MonthAt = 0, DayAt = 3, YearAt = 6, TitleAt = 13;
constexpr qsizetype TwoDigits = 2, FourDigits = 4;

QString withZeros(const QString& text, qsizetype digits) {
    return text.isEmpty() ? text : text.rightJustified(digits, '0');
}

} // namespace

QString gigName(const Gig& gig) { return gig.month + "-" + gig.day + "-" + gig.year + " -- " + gig.title; }

// A character outside the toolkit's first plane is one character too.
Gig gigOf(const QString& name) {
    const QList<uint> characters = name.toUcs4();
    const auto at = [&](qsizetype from, qsizetype count = -1) {
        const QList<uint> part = characters.mid(from, count);
        return QString::fromUcs4(reinterpret_cast<const char32_t*>(part.data()), part.size());
    };
    return {at(MonthAt, TwoDigits), at(DayAt, TwoDigits), at(YearAt, FourDigits), at(TitleAt)};
}

QString gigHeading(const Gig& gig) { return gig.month + "/" + gig.day + "/" + gig.year + ": " + gig.title; }

Gig gigOn(QDate date) {
    return {QString::number(date.month()), QString::number(date.day()), QString::number(date.year()), {}};
}

Gig padded(Gig gig) {
    gig.day = withZeros(gig.day, TwoDigits);
    gig.month = withZeros(gig.month, TwoDigits);
    gig.year = withZeros(gig.year, FourDigits);
    return gig;
}

bool writeGig(const std::filesystem::path& file, const QString& memo) {
    return writeEntryFile(file, storedText(inOneLine(memo).toStdString()));
}

std::optional<QString> readMemo(const std::filesystem::path& file) {
    const auto memo = readFirstItemText(file);
    return memo ? std::optional(QString::fromStdString(*memo)) : std::nullopt;
}

} // namespace tabrova

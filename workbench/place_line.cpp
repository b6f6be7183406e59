#include "workbench/place_line.h"

namespace tabrova {

namespace {

constexpr double ColumnsOfAQuarter = 4.0;

// A file's words may hold any signs: only the places that are meant are filled.
QString filled(const std::string& words, const QStringList& values) {
    QString text = QString::fromStdString(words);
    for (int at = 0; at < values.size(); ++at)
        text.replace('%' + QString::number(at + 1), values[at]);
    return text;
}

QString placeText(const std::string& words, qint64 staff, int staves, qint64 column) {
    return filled(words, {QString::number(staff), QString::number(staves), QString::number(column)});
}

} // namespace

QString quarterNotes(int columnsAMinute) {
    QString text = QString::number(columnsAMinute / ColumnsOfAQuarter, 'f', 2);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.')) text.chop(1);
    return text;
}

QString speedText(int columnsAMinute, const LanguageWords& words) {
    return filled(words.speed, {QString::number(columnsAMinute), quarterNotes(columnsAMinute)});
}

QString placeLine(const Document& document, const PlaceFacts& facts, const LanguageWords& words) {
    if (facts.sounding)
        return placeText(words.playing, *facts.sounding / ColumnsPerStaff + 1, document.StaffCount,
                         *facts.sounding % ColumnsPerStaff + 1);
    const QString between = QStringLiteral(" \u00B7 ");
    const QString place = placeText(words.place, document.CurrentStaff, document.StaffCount,
                                    qint64{document.ColumnInStaff} + 1);
    if (!facts.trouble.isEmpty()) return place + between + facts.trouble;
    const qint64 tempo = qint64{document.Tempo} * (facts.doubleTime ? 2 : 1);
    const QString file = facts.fileName.isEmpty() ? QString::fromStdString(words.notSaved) : facts.fileName;
    return place + between + speedText(static_cast<int>(tempo), words) + between + file;
}

} // namespace tabrova

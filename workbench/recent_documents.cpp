#include "workbench/recent_documents.h"

#include "forms/text_edges.h"
#include "platform/paths.h"

namespace tabrova {

namespace {

constexpr char Section[] = "Recent";

QString keyOf(int place) { return "Document" + QString::number(place); }

// Half a pair stands for a byte that is no text; the store's file could not hold it.
bool isStoredAsItIs(const QString& text, qsizetype at) {
    const QChar character = text[at];
    if (character.isHighSurrogate()) return at + 1 < text.size() && text[at + 1].isLowSurrogate();
    if (character.isLowSurrogate()) return at > 0 && text[at - 1].isHighSurrogate();
    return character != '%' && character >= ' ';
}

QString stored(const QString& file) {
    QString text;
    for (qsizetype at = 0; at < file.size(); ++at)
        text += isStoredAsItIs(file, at)
                    ? QString(file[at])
                    : '%' + QString::number(file[at].unicode(), 16).rightJustified(4, '0');
    return text;
}

QString restored(const QString& text) {
    constexpr qsizetype Digits = 4;
    QString file;
    for (qsizetype at = 0; at < text.size(); ++at) {
        bool hexadecimal = false;
        const ushort code = text.mid(at + 1, Digits).toUShort(&hexadecimal, 16);
        const bool escaped = text[at] == '%' && hexadecimal;
        file += escaped ? QChar(code) : text[at];
        if (escaped) at += Digits;
    }
    return file;
}

} // namespace

QString listedName(const QString& file) {
    constexpr qsizetype Longest = 60; // characters
    QString name = inOneLine(textOf(pathOf(file).filename()));
    return shortened(name.replace('\t', ' '), Longest);
}

RecentDocuments::RecentDocuments(SettingsStore& settings) : settings_(settings) {
    for (int place = 0; place < Most; ++place) {
        const QString file = restored(settings.GetSetting(Section, keyOf(place), {}));
        if (!file.isEmpty() && !files_.contains(file)) files_.append(file);
    }
}

void RecentDocuments::add(const QString& file) {
    if (file.isEmpty() || (!files_.isEmpty() && files_.front() == file)) return;
    files_.removeAll(file);
    files_.prepend(file);
    files_ = files_.mid(0, Most);
    write();
}

void RecentDocuments::remove(const QString& file) {
    if (files_.removeAll(file) > 0) write();
}

void RecentDocuments::clear() {
    files_.clear();
    write();
}

void RecentDocuments::write() {
    for (int place = 0; place < Most; ++place)
        settings_.SaveSetting(Section, keyOf(place), stored(files_.value(place)));
}

} // namespace tabrova

#include "workbench/recent_documents.h"

namespace tabrova {

namespace {

constexpr char Section[] = "Recent";

QString keyOf(int place) { return "Document" + QString::number(place); }

} // namespace

RecentDocuments::RecentDocuments(SettingsStore& settings) : settings_(settings) {
    for (int place = 0; place < Most; ++place) {
        const QString file = settings.GetSetting(Section, keyOf(place), {});
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
        settings_.SaveSetting(Section, keyOf(place), files_.value(place));
}

} // namespace tabrova

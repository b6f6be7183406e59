// The documents that were opened or saved last, newest first. They stand in the settings, section "Recent",
// with "%" and four hexadecimal digits for a percent sign and for what is no text.
#pragma once

#include "platform/settings_store.h"

#include <QStringList>

namespace tabrova {

// A file's name as a list shows it: in one line of bearable length.
QString listedName(const QString& file);

class RecentDocuments {
  public:
    static constexpr int Most = 10;

    explicit RecentDocuments(SettingsStore& settings);

    // Whole paths.
    const QStringList& files() const { return files_; }
    // To the front; one that stood in the list already moves there.
    void add(const QString& file);
    void remove(const QString& file);
    void clear();

  private:
    void write();

    SettingsStore& settings_;
    QStringList files_;
};

} // namespace tabrova

// File choosers: a question for one path, to open or to save under.
#pragma once

#include "platform/settings_store.h"

#include <QList>
#include <QString>

#include <deque>
#include <optional>

namespace tabrova {

struct FileQuestion {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    QString filter;           // "Name|*.ext", as many pairs as needed
    QString defaultExtension; // without a dot; added to a name without one when saving
    QString name;             // shown at first; may be empty
};

class FileChooser {
  public:
    virtual ~FileChooser() = default;
    // std::nullopt: cancelled.
    virtual std::optional<QString> choose(const FileQuestion& question) = 0;
};

// Opens where the last file was chosen, if the question names none; that folder is remembered in the
// settings.
class DesktopFileChooser : public FileChooser {
  public:
    std::optional<QString> choose(const FileQuestion& question) override;
    // The store must outlive the chooser; without one the folder is forgotten with the program.
    void rememberIn(SettingsStore& settings) { settings_ = &settings; }

  private:
    QString folderFor(const QString& name) const;
    void remember(const QString& file);

    SettingsStore* settings_ = nullptr;
    QString folder_;
};

// Answers from a queue, by cancelling when it is empty, and keeps what was asked.
class RecordingFileChooser : public FileChooser {
  public:
    struct Asked {
        FileQuestion question;
        std::optional<QString> answer;
    };

    std::optional<QString> choose(const FileQuestion& question) override;
    void queueAnswer(std::optional<QString> path) { answers_.push_back(std::move(path)); }
    QList<Asked> take();

  private:
    std::deque<std::optional<QString>> answers_;
    QList<Asked> asked_;
};

} // namespace tabrova

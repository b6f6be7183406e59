// File choosers: a question for one path, to open or to save under.
#pragma once

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

class DesktopFileChooser : public FileChooser {
  public:
    std::optional<QString> choose(const FileQuestion& question) override;
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

// `txtLesson`, the lesson as a page to read. It reaches for nothing but the lesson's own file, whatever the
// lesson names; a link is told, not followed.
#pragma once

#include <QTextBrowser>

#include <filesystem>
#include <functional>
#include <memory>

namespace tabrova {

class LessonView : public QTextBrowser {
  public:
    LessonView(const QString& name, QWidget* parent);

    // The bytes of a lesson that are read at the most.
    static constexpr std::uintmax_t MostBytes = 64 * 1024 * 1024;

    // Shows the file from its beginning. False if it cannot be read, or is no regular file; the view then
    // shows what it showed.
    bool load(const std::filesystem::path& file);

    // A link to an address of the web or of mail was chosen; others lead nowhere, but places in the lesson
    // are gone to.
    std::function<void(const QString& address)> linkChosen;

    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void follow(const QUrl& link);
    void layOutWhole();
    void show(std::unique_ptr<QTextDocument> lesson);

    std::unique_ptr<QTextDocument> lesson_;
};

} // namespace tabrova

// `txtNotes`: several lines of at most 250 characters of the code page, a line end counting two.
#pragma once

#include <QPlainTextEdit>

#include <functional>

namespace tabrova {

class NotesBox : public QPlainTextEdit {
  public:
    explicit NotesBox(QWidget* parent);

    // Notes that a file brought along may be longer; they do not grow.
    void showNotes(const QString& notes);

    // Says why a character is refused.
    std::function<QString()> hint;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    // Characters that still have room where the selection stands.
    qsizetype room() const;
    void refuseTheRest();

    qsizetype most_;
};

} // namespace tabrova

// A box for several lines of the code page's characters. Others are refused as they are typed, composed or
// pasted.
#pragma once

#include <QPlainTextEdit>

#include <functional>

namespace tabrova {

class CodePageBox : public QPlainTextEdit {
  public:
    CodePageBox(const QString& name, QWidget* parent);

    // All that stands in the box, with LF as line end; `toPlainText` would turn hard blanks into plain ones.
    QString wholeText() const;

    // Says why a character is refused.
    std::function<QString()> hint;

  protected:
    // What a file can hold of the text, as far as there is room for that many characters, a line end counting
    // two.
    static QString accepted(const QString& text, qsizetype room);
    // Characters that still have room where the selection stands.
    virtual qsizetype room() const;

    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace tabrova

#include "organisers/file_properties/notes_box.h"

#include <QSignalBlocker>

#include <algorithm>

namespace tabrova {

namespace {

constexpr qsizetype LongestNotes = 250;

qsizetype lengthOf(const QString& text) { return text.size() + text.count('\n'); }

} // namespace

NotesBox::NotesBox(QWidget* parent) : CodePageBox("txtNotes", parent), most_(LongestNotes) {
    connect(this, &QPlainTextEdit::textChanged, this, [this] { refuseTheRest(); });
}

void NotesBox::showNotes(const QString& notes) {
    most_ = std::max(LongestNotes, lengthOf(notes));
    setPlainText(notes);
}

qsizetype NotesBox::room() const {
    const QString selected = textCursor().selectedText().replace(QChar::ParagraphSeparator, '\n');
    return most_ - (lengthOf(toPlainText()) - lengthOf(selected));
}

// For texts that come by no key and no clipboard.
void NotesBox::refuseTheRest() {
    const QString text = toPlainText();
    const QString kept = accepted(text, most_);
    if (kept == text) return;
    const QSignalBlocker quiet(this);
    const int position = std::min(textCursor().position(), static_cast<int>(kept.size()));
    setPlainText(kept);
    QTextCursor cursor = textCursor();
    cursor.setPosition(position);
    setTextCursor(cursor);
}

} // namespace tabrova

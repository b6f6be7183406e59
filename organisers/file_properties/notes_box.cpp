#include "organisers/file_properties/notes_box.h"

#include "core/text/code_page.h"
#include "forms/plain_tool_tips.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>

#include <algorithm>

namespace tabrova {

namespace {

constexpr qsizetype LongestNotes = 250;

qsizetype lengthOf(const QString& text) { return text.size() + text.count('\n'); }

bool isHeld(char32_t character) { return character == U'\n' || byteOf(character).has_value(); }

// What a file can hold of the text, as much as there is room for.
QString accepted(const QString& text, qsizetype room) {
    QString kept;
    for (const char32_t character : QString(text).replace("\r\n", "\n").toUcs4()) {
        if (!isHeld(character)) continue;
        room -= character == U'\n' ? 2 : 1;
        if (room < 0) break;
        kept.append(QString::fromUcs4(&character, 1));
    }
    return kept;
}

} // namespace

NotesBox::NotesBox(QWidget* parent) : QPlainTextEdit(parent), most_(LongestNotes) {
    setObjectName("txtNotes");
    setTabChangesFocus(true);
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

// A character without room or place is refused, and what stands in the box stays.
void NotesBox::keyPressEvent(QKeyEvent* event) {
    QString typed = event->text();
    if (typed == "\r") typed = "\n";
    const bool types = !typed.isEmpty() && (typed[0] == '\n' || typed[0].isPrint());
    if (!types || accepted(typed, room()) == typed) return QPlainTextEdit::keyPressEvent(event);
    if (hint && accepted(typed, LongestNotes) != typed)
        showPlainHint(mapToGlobal(cursorRect().bottomLeft()), hint(), this);
}

void NotesBox::insertFromMimeData(const QMimeData* source) {
    if (source->hasText()) insertPlainText(accepted(source->text(), room()));
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

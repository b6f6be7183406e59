#include "forms/code_page_box.h"

#include "core/text/code_page.h"
#include "forms/plain_tool_tips.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <limits>

namespace tabrova {

namespace {

constexpr qsizetype NoLimit = std::numeric_limits<qsizetype>::max();

bool isHeld(char32_t character) { return character == U'\n' || byteOf(character).has_value(); }

} // namespace

CodePageBox::CodePageBox(const QString& name, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(name);
    setTabChangesFocus(true);
}

QString CodePageBox::wholeText() const {
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, '\n')
        .replace(QChar::LineSeparator, '\n');
}

qsizetype CodePageBox::room() const { return NoLimit; }

QString CodePageBox::accepted(const QString& text, qsizetype room) {
    QString kept;
    for (const char32_t character : QString(text).replace("\r\n", "\n").toUcs4()) {
        if (!isHeld(character)) continue;
        room -= character == U'\n' ? 2 : 1;
        if (room < 0) break;
        kept.append(QString::fromUcs4(&character, 1));
    }
    return kept;
}

// A character without room or place is refused, and what stands in the box stays.
void CodePageBox::keyPressEvent(QKeyEvent* event) {
    QString typed = event->text();
    if (typed == "\r") typed = "\n";
    const bool types = !typed.isEmpty() && (typed[0] == '\n' || typed[0].isPrint() || typed[0].isSurrogate());
    if (!types || accepted(typed, room()) == typed) return QPlainTextEdit::keyPressEvent(event);
    if (hint && accepted(typed, NoLimit) != typed)
        showPlainHint(mapToGlobal(cursorRect().bottomLeft()), hint(), this);
}

// What is composed of several keys.
void CodePageBox::inputMethodEvent(QInputMethodEvent* event) {
    const QString held = accepted(event->commitString(), room());
    if (hint && accepted(event->commitString(), NoLimit) != event->commitString())
        showPlainHint(mapToGlobal(cursorRect().bottomLeft()), hint(), this);
    event->setCommitString(held, event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

void CodePageBox::insertFromMimeData(const QMimeData* source) {
    if (source->hasText()) insertPlainText(accepted(source->text(), room()));
}

} // namespace tabrova

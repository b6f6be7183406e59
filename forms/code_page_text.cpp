#include "forms/code_page_text.h"

#include "core/text/code_page.h"
#include "forms/plain_tool_tips.h"

#include <QLineEdit>

#include <algorithm>

namespace tabrova {

QString fromCodePage(std::string_view bytes) {
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(), [](char byte) {
        return QChar(static_cast<char16_t>(codePointOf(static_cast<unsigned char>(byte))));
    });
    return text;
}

QString shownName(const std::string& bytes) { return QString::fromStdString(shownNameUtf8(bytes)); }

std::string toCodePage(const QString& text) {
    std::string bytes;
    for (const char32_t character : text.toUcs4())
        bytes.push_back(static_cast<char>(byteOf(character).value_or(static_cast<unsigned char>('?'))));
    return bytes;
}

// A line of a file cannot hold line ends; other control characters would not be seen.
QValidator::State CodePageValidator::validate(QString& text, int&) const {
    text.replace("\r\n", "  ");
    for (QChar& character : text)
        if (character.unicode() < ' ' || character.unicode() == 0x7F) character = ' ';
    for (const char32_t character : text.toUcs4())
        if (!byteOf(character)) return Invalid;
    return Acceptable;
}

void restrictToCodePage(QLineEdit& box, std::function<QString()> hint) {
    box.setValidator(new CodePageValidator(&box));
    QObject::connect(&box, &QLineEdit::inputRejected, &box, [&box, hint = std::move(hint)] {
        showPlainHint(box.mapToGlobal(QPoint(0, box.height())), hint(), &box);
    });
}

} // namespace tabrova

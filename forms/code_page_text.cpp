#include "forms/code_page_text.h"

#include "core/code_page.h"

#include <QLineEdit>
#include <QToolTip>

namespace tabrova {

QString fromCodePage(const std::string& bytes) {
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (const char c : bytes)
        text.append(QChar(static_cast<char16_t>(codePointOf(static_cast<unsigned char>(c)))));
    return text;
}

std::string toCodePage(const QString& text) {
    std::string bytes;
    for (const char32_t character : text.toUcs4())
        bytes.push_back(static_cast<char>(byteOf(character).value_or(static_cast<unsigned char>('?'))));
    return bytes;
}

QValidator::State CodePageValidator::validate(QString& text, int&) const {
    for (const char32_t character : text.toUcs4())
        if (!byteOf(character)) return Invalid;
    return Acceptable;
}

void restrictToCodePage(QLineEdit& box, std::function<QString()> hint) {
    box.setValidator(new CodePageValidator(&box));
    QObject::connect(&box, &QLineEdit::inputRejected, &box, [&box, hint = std::move(hint)] {
        QToolTip::showText(box.mapToGlobal(QPoint(0, box.height())), hint(), &box);
    });
}

} // namespace tabrova

#include "organisers/text_export/export_text.h"

#include "forms/code_page_text.h"

namespace tabrova {

QString boxText(std::string_view file, const QString& newLine) {
    constexpr std::string_view LineEnd = "\r\n";
    QString text;
    text.reserve(static_cast<qsizetype>(file.size() + file.size() / 32));
    while (!file.empty()) {
        const std::size_t length = std::min(file.find(LineEnd), file.size());
        text += fromCodePage(file.substr(0, std::min(length, LongestShownLine)));
        text += newLine;
        file.remove_prefix(std::min(length + LineEnd.size(), file.size()));
    }
    return text.replace("\r\n", "\n");
}

std::string savedText(const QString& box) { return toCodePage(QString(box).replace("\n", "\r\n")); }

} // namespace tabrova

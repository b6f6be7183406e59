#include "forms/text_edges.h"

namespace tabrova {

namespace {

const QString Mark = QStringLiteral("[*]");
const QString EscapedMark = QStringLiteral("[*][*]");

} // namespace

QString textOf(const std::filesystem::path& path) {
    const std::u8string bytes = path.u8string();
    return QString::fromUtf8(reinterpret_cast<const char*>(bytes.data()),
                             static_cast<qsizetype>(bytes.size()));
}

std::filesystem::path pathOf(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return std::u8string(reinterpret_cast<const char8_t*>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size()));
}

void setTitleOf(QWidget& window, const QString& title) {
    window.setWindowTitle(QString(title).replace(Mark, EscapedMark));
}

QString titleOf(const QWidget& window) { return window.windowTitle().replace(EscapedMark, Mark); }

} // namespace tabrova

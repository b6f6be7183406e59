#include "platform/paths.h"

#include <QStandardPaths>
#include <QStringDecoder>

namespace tabrova {

namespace fs = std::filesystem;

#ifdef Q_OS_WIN

QString textOf(const fs::path& path) { return QString::fromStdWString(path.wstring()); }
fs::path pathOf(const QString& text) { return text.toStdWString(); }
fs::path environmentPath(const char* variable) { return pathOf(qEnvironmentVariable(variable)); }

#else

namespace {

constexpr char16_t FirstEscape = 0xDC80; // of byte 0x80
constexpr char16_t LastEscape = 0xDCFF;

// Nothing if the bytes are no UTF-8.
std::optional<QString> decoded(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional<QString>(text);
}

qsizetype lengthByLead(char byte) {
    const auto lead = static_cast<unsigned char>(byte);
    return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

QString escaped(QByteArrayView bytes) {
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype length = lengthByLead(bytes.front());
        const auto character = length <= bytes.size() ? decoded(bytes.first(length)) : std::nullopt;
        if (character) {
            text.append(*character);
            bytes = bytes.sliced(length);
        } else {
            text.append(
                QChar(static_cast<char16_t>(FirstEscape - 0x80 + static_cast<unsigned char>(bytes.front()))));
            bytes = bytes.sliced(1);
        }
    }
    return text;
}

} // namespace

QString textOf(const fs::path& path) {
    const QByteArrayView bytes(path.native().data(), static_cast<qsizetype>(path.native().size()));
    const auto text = decoded(bytes);
    return text ? *text : escaped(bytes);
}

fs::path pathOf(const QString& text) {
    std::string bytes;
    qsizetype copied = 0;
    const auto copyUpTo = [&](qsizetype end) {
        bytes += QStringView(text).sliced(copied, end - copied).toUtf8().toStdString();
        copied = end;
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at].unicode();
        const bool half = at == 0 || !text[at - 1].isHighSurrogate();
        if (!half || unit < FirstEscape || unit > LastEscape) continue;
        copyUpTo(at);
        bytes.push_back(static_cast<char>(unit - FirstEscape + 0x80));
        copied = at + 1;
    }
    copyUpTo(text.size());
    return bytes;
}

fs::path environmentPath(const char* variable) { return qgetenv(variable).toStdString(); }

#endif

// The toolkit cannot name a folder whose name is no text; there the environment itself tells.
fs::path userDataFolder() {
    const QString named = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!named.contains(QChar::ReplacementCharacter)) return pathOf(named);
    const fs::path data = environmentPath("XDG_DATA_HOME");
    return data.is_absolute() ? data : environmentPath("HOME") / ".local" / "share";
}

} // namespace tabrova

#include "shell/dropped_document.h"

#include "platform/paths.h"

#include <QMimeData>
#include <QUrl>

namespace tabrova {

namespace {

QString fileOf(const QUrl& url) {
#ifdef Q_OS_WIN
    return url.toLocalFile();
#else
    // The toolkit's own way loses bytes that are no text.
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return textOf(std::filesystem::path(bytes.toStdString()));
#endif
}

} // namespace

QString droppedDocument(const QMimeData& dropped) {
    const QList<QUrl> urls = dropped.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
    const QString file = fileOf(urls.front());
    return file.endsWith(".tr3", Qt::CaseInsensitive) ? file : QString();
}

} // namespace tabrova

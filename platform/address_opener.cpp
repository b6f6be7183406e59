#include "platform/address_opener.h"

#include <QDesktopServices>

namespace tabrova {

QUrl urlOf(const QString& address) {
    const QUrl url = QUrl::fromUserInput(address);
    return url.isValid() && !url.scheme().isEmpty() ? url : QUrl();
}

void DesktopAddressOpener::open(const QString& address) {
    const QUrl url = urlOf(address);
    if (url.isValid()) QDesktopServices::openUrl(url);
}

} // namespace tabrova

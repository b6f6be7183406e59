#include "platform/address_opener.h"

#include <QDesktopServices>
#include <QUrl>

namespace tabrova {

void DesktopAddressOpener::open(const QString& address) { QDesktopServices::openUrl(QUrl(address)); }

} // namespace tabrova

#include "platform/address_opener.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace tabrova {

namespace {

constexpr const char* SystemInformationTools[] = {"hardinfo2", "hardinfo", "kinfocenter", "msinfo32"};

} // namespace

void DesktopAddressOpener::open(const QString& address) { QDesktopServices::openUrl(QUrl(address)); }

bool startSystemInformation() {
    for (const char* tool : SystemInformationTools) {
        const QString path = QStandardPaths::findExecutable(tool);
        if (!path.isEmpty()) return QProcess::startDetached(path, {});
    }
    return false;
}

} // namespace tabrova

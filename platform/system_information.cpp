#include "platform/system_information.h"

#include <QProcess>
#include <QStandardPaths>

namespace tabrova {

namespace {

constexpr const char* SystemInformationTools[] = {"hardinfo2", "hardinfo", "kinfocenter", "msinfo32"};

} // namespace

bool DesktopSystemInformation::start() {
    for (const char* tool : SystemInformationTools) {
        const QString path = QStandardPaths::findExecutable(tool);
        if (!path.isEmpty()) return QProcess::startDetached(path, {});
    }
    return false;
}

} // namespace tabrova

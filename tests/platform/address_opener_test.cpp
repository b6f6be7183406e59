// Addresses go to the desktop's own programs.
#include "platform/address_opener.h"

#include <QDesktopServices>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

TEST(Addresses, GoToTheDesktop) {
    QTextBrowser desktop;
    QList<QUrl> opened;
    QObject::connect(&desktop, &QTextBrowser::anchorClicked, [&](const QUrl& url) { opened.append(url); });
    QDesktopServices::setUrlHandler("x-tabrova", &desktop, "anchorClicked");
    DesktopAddressOpener().open("x-tabrova:somebody@example.org");
    QDesktopServices::unsetUrlHandler("x-tabrova");
    EXPECT_EQ(opened, QList<QUrl>{QUrl("x-tabrova:somebody@example.org")});
}

TEST(Addresses, AreKeptByTheRecordingOpenerUntilTheyAreTaken) {
    RecordingAddressOpener addresses;
    addresses.open("https://example.org");
    addresses.open("mailto:somebody@example.org");
    EXPECT_EQ(addresses.take(), QStringList({"https://example.org", "mailto:somebody@example.org"}));
    EXPECT_TRUE(addresses.take().isEmpty());
}

} // namespace
} // namespace tabrova

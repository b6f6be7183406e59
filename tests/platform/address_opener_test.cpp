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

TEST(Addresses, KeepTheirScheme) {
    for (const char* address : {"http://tabs.example/a?b=c#d", "https://tabs.example", "mailto:a@b.example",
                                "ftp://tabs.example/x", "file:///home/song.txt"})
        EXPECT_EQ(urlOf(address).toString(), address);
}

TEST(Addresses, WithoutASchemeAreThoseOfTheWeb) {
    EXPECT_EQ(urlOf("www.site.example").toString(), "http://www.site.example");
    EXPECT_EQ(urlOf("  site.example/a b ").toEncoded(), "http://site.example/a%20b");
    EXPECT_EQ(urlOf("localhost:8080").toString(), "http://localhost:8080");
}

TEST(Addresses, AreHandedOnInOneEncodedFormThatIsNoOption) {
    EXPECT_EQ(urlOf("mailto:<none specified>").toEncoded(), "mailto:%3Cnone%20specified%3E");
    for (const char* text :
         {"-h", "--version", "-", "a b", "$(x)", "'\"`;|&", "http://", "mailto:", "x\ny"}) {
        const QByteArray handed = urlOf(text).toEncoded();
        EXPECT_FALSE(handed.startsWith('-')) << text;
        EXPECT_TRUE(handed.isEmpty() || handed.contains(':')) << text;
        for (const char byte : handed)
            EXPECT_TRUE(byte > ' ' && byte != '"' && byte != '<') << text;
    }
}

TEST(Addresses, ThatAreNoneOpenNothing) {
    for (const char* text : {"", "   "})
        EXPECT_FALSE(urlOf(text).isValid()) << text;
    QTextBrowser desktop;
    int opened = 0;
    QObject::connect(&desktop, &QTextBrowser::anchorClicked, [&] { ++opened; });
    for (const char* scheme : {"http", "file", ""})
        QDesktopServices::setUrlHandler(scheme, &desktop, "anchorClicked");
    DesktopAddressOpener().open("");
    DesktopAddressOpener().open("   ");
    EXPECT_EQ(opened, 0);
    DesktopAddressOpener().open("www.site.example");
    EXPECT_EQ(opened, 1);
    for (const char* scheme : {"http", "file", ""})
        QDesktopServices::unsetUrlHandler(scheme);
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

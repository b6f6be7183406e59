// The user's stored settings: where they stand, and that they last.
#include "platform/settings_store.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class Settings : public ::testing::Test {
  protected:
    QByteArray contentOf(const QString& path) const {
        QFile stored(path);
        EXPECT_TRUE(stored.open(QIODevice::ReadOnly)) << path.toStdString();
        return stored.readAll();
    }

    QTemporaryDir folder;
    const QString file = folder.filePath("settings.ini");
};

void expectKeepsTexts(SettingsStore& store) {
    EXPECT_EQ(store.GetSetting("Options", "Key", "otherwise"), "otherwise");
    store.SaveSetting("Options", "Key", "first");
    store.SaveSetting("Options", "Other", "");
    store.SaveSetting("Section", "Key", "second");
    EXPECT_EQ(store.GetSetting("Options", "Key", "otherwise"), "first");
    EXPECT_EQ(store.GetSetting("Options", "Other", "otherwise"), "");
    EXPECT_EQ(store.GetSetting("Section", "Key", "otherwise"), "second");
    EXPECT_EQ(store.GetSetting("Section", "Other", "otherwise"), "otherwise");
    store.SaveSetting("Options", "Key", "third");
    EXPECT_EQ(store.GetSetting("Options", "Key", "otherwise"), "third");
}

TEST_F(Settings, AreTextsBySectionAndKey) {
    DesktopSettingsStore real(file);
    expectKeepsTexts(real);
    MemorySettingsStore memory;
    expectKeepsTexts(memory);
}

TEST_F(Settings, AreInTheFileAtOnce) {
    DesktopSettingsStore store(file);
    store.SaveSetting("Options", "Key", "text");
    EXPECT_EQ(contentOf(file), "[Options]\nKey=text\n");
}

TEST_F(Settings, AreThereForTheNextRun) {
    DesktopSettingsStore(file).SaveSetting("Options", "Key", "text");
    EXPECT_EQ(DesktopSettingsStore(file).GetSetting("Options", "Key", "otherwise"), "text");
}

TEST_F(Settings, StandUnderTheApplicationsNameInTheUsersFolder) {
    DesktopSettingsStore().SaveSetting("Options", "Key", "text");
    EXPECT_EQ(contentOf(qEnvironmentVariable("XDG_CONFIG_HOME") + "/Kelmoor/Kelmoor.conf"),
              "[Options]\nKey=text\n");
}

} // namespace
} // namespace tabrova

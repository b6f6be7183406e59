#include "platform/settings_store.h"

#include <QSettings>
#include <QStandardPaths>

namespace tabrova {

void keepToolkitInsideHome() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (folder.contains(QChar::ReplacementCharacter))
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

DesktopSettingsStore::DesktopSettingsStore()
    : settings_(std::make_unique<QSettings>(SettingsApplication, SettingsApplication)) {}

DesktopSettingsStore::DesktopSettingsStore(const QString& iniFile)
    : settings_(std::make_unique<QSettings>(iniFile, QSettings::IniFormat)) {}

DesktopSettingsStore::~DesktopSettingsStore() = default;

QString DesktopSettingsStore::GetSetting(const QString& section, const QString& key,
                                         const QString& otherwise) const {
    return settings_->value(section + '/' + key, otherwise).toString();
}

void DesktopSettingsStore::SaveSetting(const QString& section, const QString& key, const QString& value) {
    settings_->setValue(section + '/' + key, value);
    settings_->sync();
}

} // namespace tabrova

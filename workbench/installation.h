// What the installation sets: the addresses of the web and of mail. They stand in the settings.
#pragma once

#include "platform/settings_store.h"

namespace tabrova {

inline QString installationAddress(SettingsStore& settings, const QString& key, const QString& otherwise) {
    return settings.GetSetting("Installation", key, otherwise);
}

// The product's own address.
inline QString webAddress(SettingsStore& settings) {
    return installationAddress(settings, "WebAddress", "https://tabrova.invalid");
}

} // namespace tabrova

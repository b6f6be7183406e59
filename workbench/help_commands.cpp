#include "workbench/help_commands.h"

#include "workbench/installation.h"

namespace tabrova {

void HelpCommands::registerRows(CommandTable& table) {
    table.item("mnuHelpKeys", [this] { tools_.open("frmHelp", {nullptr, HelpPage::Keys}); });
    table.item("mnuTechSupport", [this] { mnuTechSupport(); });
    table.item("mnuNewVersionCheck", [this] { mnuNewVersionCheck(); });
    table.wordOfItem("tr3", "mnuNewVersionCheck");
}

void HelpCommands::mnuTechSupport() {
    openSettingAddress("SupportAddress", "mailto:support@tabrova.invalid");
}

void HelpCommands::mnuNewVersionCheck() {
    openSettingAddress("UpdatePage", "https://tabrova.invalid/update");
}

void HelpCommands::openSettingAddress(const QString& key, const QString& otherwise) {
    services_.addresses.open(installationAddress(services_.settings, key, otherwise));
}

} // namespace tabrova

// The Help menu's ways out of the program: the addresses of the installation.
#pragma once

#include "editing/command_table.h"
#include "platform/services.h"

namespace tabrova {

class HelpCommands {
  public:
    explicit HelpCommands(Services& services) : services_(services) {}
    void registerRows(CommandTable& table);

    void mnuTechSupport();
    void mnuNewVersionCheck();

  private:
    // The setting of the section "Installation", or the other address.
    void openSettingAddress(const QString& key, const QString& otherwise);

    Services& services_;
};

} // namespace tabrova

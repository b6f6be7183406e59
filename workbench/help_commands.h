// The Help menu's ways out of the program: the addresses of the installation.
#pragma once

#include "editing/command_table.h"
#include "platform/services.h"
#include "workbench/tool_opener.h"

namespace tabrova {

// The help's pages, as they are asked for.
struct HelpPage {
    static constexpr int Topics = 0;
    static constexpr int Keys = 1;
};

class HelpCommands {
  public:
    HelpCommands(Services& services, ToolOpener& tools) : services_(services), tools_(tools) {}
    void registerRows(CommandTable& table);

    void mnuTechSupport();
    void mnuNewVersionCheck();

  private:
    // The setting of the section "Installation", or the other address.
    void openSettingAddress(const QString& key, const QString& otherwise);

    Services& services_;
    ToolOpener& tools_;
};

} // namespace tabrova

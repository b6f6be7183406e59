// The File menu's two lists of documents: those that were opened last, and the examples.
#pragma once

#include "shell/main_menu.h"
#include "workbench/commands.h"

namespace tabrova {

class FileLists : private ActObserver {
  public:
    FileLists(const ToolContext& context, MainMenu& menu);
    ~FileLists() override;

    // When the program starts.
    void show();

  private:
    void actEnded(std::string_view act, const Changes& changes) override;
    void showRecent();
    void listExamples();

    const ToolContext& context_;
    MainMenu& menu_;
};

} // namespace tabrova

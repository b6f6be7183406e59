// How the program starts and ends, step by step.
#pragma once

#include "workbench/commands.h"

namespace tabrova {

class ProgramCommands {
  public:
    enum class Splash { AsSettingsSay, Never };

    explicit ProgramCommands(const ToolContext& context, MenuState& menus)
        : context_(context), bench_(context.bench), menus_(menus) {}

    // In its fixed order. An empty command line shows the welcome window.
    void Form_Load(const QString& commandLine, Splash splash);
    // The steps of closing, without a question: playback stops, notes end, windows go, the device closes.
    // Once.
    void endInOrder();

  private:
    void startSound();

    const ToolContext& context_;
    Workbench& bench_;
    MenuState& menus_;
    bool ended_ = false;
};

} // namespace tabrova

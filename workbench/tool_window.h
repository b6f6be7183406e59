// The base of every tool window: a form with the tools' context.
#pragma once

#include "forms/form.h"
#include "workbench/commands.h"

namespace tabrova {

class ToolWindow : public Form {
  public:
    ToolWindow(const char* name, const ToolContext& context, QWidget* parent)
        : Form(name, context.services.programFolder, parent), context_(context) {}

    // Each time that it comes into view, after Form_Load if it is loaded by that.
    virtual void Form_Opened(const ToolOpener::Opening&) {}

  protected:
    Document& document() { return context_.bench.document; }
    Editor& editor() { return context_.bench.editor; }
    MidiOutput& sound() { return context_.bench.sound; }
    Services& services() { return context_.services; }

    const ToolContext& context_;
};

} // namespace tabrova

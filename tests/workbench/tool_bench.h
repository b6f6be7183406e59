// A workbench with all its commands and no window: the other windows, the menus and the clock only remember
// what is asked of them, in one log with the boxes and what each act told.
#pragma once

#include "platform/recording_services.h"
#include "workbench/program_commands.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tabrova::testing {

using Log = std::vector<std::string>;

class FakeTools : public ToolOpener {
  public:
    explicit FakeTools(Log& log) : log_(log) {}

    bool has(std::string_view form) const override { return !missing.contains(std::string(form)); }
    bool isLoaded(std::string_view form) const override { return loaded.contains(std::string(form)); }
    void load(std::string_view form) override {
        if (!loaded.insert(std::string(form)).second) return;
        log_.push_back("load " + std::string(form));
        if (whenLoaded) whenLoaded(form);
    }
    void open(std::string_view form, const Opening& opening) override {
        log_.push_back("open " + std::string(form));
        loaded.insert(std::string(form));
        lastTab = opening.tab;
    }
    using ToolOpener::open;
    void unload(std::string_view form) override {
        if (loaded.erase(std::string(form)) > 0) log_.push_back("unload " + std::string(form));
    }
    void unloadAll() override {
        log_.push_back("unload all");
        loaded.clear();
    }
    void showMain() override { log_.push_back("show main"); }

    std::set<std::string> loaded, missing;
    std::function<void(std::string_view form)> whenLoaded;
    int lastTab = -1;

  private:
    Log& log_;
};

class FakeMenus : public MenuState {
  public:
    bool isEnabled(const QString& item) const override { return !disabled.contains(item); }
    bool isChecked(const QString& item) const override { return checked.contains(item); }
    void setChecked(const QString& item, bool check) override {
        check ? void(checked.insert(item)) : void(checked.erase(item));
    }

    std::set<QString> disabled, checked;
};

class FakeClock : public ColumnClock {
  public:
    explicit FakeClock(Log& log) : log_(log) {}

    void setInterval(int milliseconds) override {
        interval = milliseconds;
        log_.push_back("interval " + std::to_string(milliseconds));
    }
    void setEnabled(bool enable) override {
        enabled = enable && !refuses;
        log_.push_back(enable ? "clock on" : "clock off");
    }
    bool isEnabled() const override { return enabled; }

    int interval = 0;
    bool enabled = false, refuses = false;

  private:
    Log& log_;
};

// The last things that were told, each once an act.
class ActWatcher : public ActObserver {
  public:
    ActWatcher(Acts& acts, Log& log) : acts_(acts), log_(log) { acts_.add(*this); }
    ~ActWatcher() override { acts_.remove(*this); }
    void actEnded(std::string_view act, const Changes& changes) override {
        log_.push_back("act " + std::string(act));
        last = changes;
        languages += changes.language;
    }

    Changes last;
    int languages = 0;

  private:
    Acts& acts_;
    Log& log_;
};

class ToolBench : public ::testing::Test, protected RecordingServices {
  protected:
    ToolBench() {
        timers.setFrozen(true);
        bench.surroundings.clientWidth = 1000;
        bench.surroundings.clientHeight = 676;
        bench.sound.OpenMidiDevice(MidiMapperId);
        bench.editor.MakeNewDocument();
        bench.document.RealtimeMode = 1;
        log.clear();
        midi.take();
    }

    Document& document() { return bench.document; }
    std::filesystem::path folder() const { return home.path().toStdString(); }

    QTemporaryDir home;
    int ends = 0; // of the program, at once
    Services services = RecordingServices::services(folder(), [this] { ++ends; });
    Log log;
    Workbench bench{services, nullptr};
    FakeTools tools{log};
    FakeMenus menus;
    FakeClock clock{log};
    Commands commands{bench, tools, clock, menus};
    ToolContext context{bench, services, bench.words, commands, tools};
    ActWatcher watcher{bench.acts, log};
};

} // namespace tabrova::testing

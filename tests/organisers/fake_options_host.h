// A main window that keeps what the options change in it.
#pragma once

#include "organisers/options/options_host.h"

namespace tabrova {

class FakeOptionsHost : public OptionsHost {
  public:
    explicit FakeOptionsHost(MidiDevice& device) : output(device, [this](int) { ++failures; }) {}

    Document& document() override { return opened; }
    MidiOutput& sound() override { return output; }
    void setCursorColor(QRgb value) override { color = value; }
    int cursorBorderWidth() const override { return borderWidth; }
    void setCursorBorderWidth(int pixels) override { borderWidth = pixels; }
    bool tabOneColor() const override { return oneColor; }
    void setTabOneColor(bool one) override { oneColor = one; }
    void showStatistics(bool shown) override { statistics = shown; }
    void setDebugMode(bool on) override { debug = on; }
    void languageApplied() override { ++languages; }
    void silenceAfter(int milliseconds) override { silence = milliseconds; }

    Document opened;
    int failures = 0;
    MidiOutput output;
    QRgb color = 0;
    int borderWidth = 1;
    int silence = 0;
    int languages = 0;
    bool oneColor = false, statistics = false, debug = false;
};

} // namespace tabrova

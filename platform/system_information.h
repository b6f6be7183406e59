// The desktop's system information tool, a program of its own.
#pragma once

#include <utility>

namespace tabrova {

class SystemInformation {
  public:
    virtual ~SystemInformation() = default;
    // False if the desktop has no such tool or it did not start.
    virtual bool start() = 0;
};

class DesktopSystemInformation : public SystemInformation {
  public:
    bool start() override;
};

// Starts nothing: a desktop without such a tool, unless told otherwise.
class RecordingSystemInformation : public SystemInformation {
  public:
    bool start() override {
        ++asked_;
        return starts;
    }
    // How often it was asked for since the last call.
    int take() { return std::exchange(asked_, 0); }
    bool starts = false;

  private:
    int asked_ = 0;
};

} // namespace tabrova

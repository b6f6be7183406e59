// The clock of playback: one tick a column.
#pragma once

namespace tabrova {

class ColumnClock {
  public:
    virtual ~ColumnClock() = default;
    virtual void setInterval(int milliseconds) = 0;
    // A clock that the system refuses stays disabled.
    virtual void setEnabled(bool enabled) = 0;
    virtual bool isEnabled() const = 0;
};

} // namespace tabrova

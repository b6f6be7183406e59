// The sound libraries talk to the terminal whenever a service that was asked for does not run. That is no
// error here: such a service simply has no ports, and what matters is told in the window.
#pragma once

namespace tabrova {

// The libraries that are there write nothing from now on.
void silenceSoundLibraries();

// What this thread writes to the standard error stream while this lives is dropped. Other threads still
// write.
class QuietErrorStream {
  public:
    QuietErrorStream();
    QuietErrorStream(const QuietErrorStream&) = delete;
    QuietErrorStream& operator=(const QuietErrorStream&) = delete;
    ~QuietErrorStream();
};

} // namespace tabrova

// Files that come from anywhere. Only regular ones are read and written: a pipe would hang the program, and a
// device never ends.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>

namespace tabrova {

// Reads a regular file of up to `mostBytes` bytes; anything else fails to open. What the file grows by once
// it is open is not read. For `read` alone: other ways of input are not bounded.
class RegularFile : public std::istream {
  public:
    explicit RegularFile(const std::filesystem::path& path,
                         std::uintmax_t mostBytes = std::numeric_limits<std::uintmax_t>::max());

  private:
    class Buffer : public std::filebuf {
      public:
        std::uintmax_t left = 0;

      protected:
        std::streamsize xsgetn(char* to, std::streamsize count) override;
    };
    Buffer buffer_;
};

// A pipe, a device or a socket: what is there, and neither a regular file nor a folder.
bool isSpecialFile(const std::filesystem::path& path);

} // namespace tabrova

// An empty folder of this process alone, gone at the end of the test.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace tabrova::testing {

class TemporaryFolder {
  public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("tabrova_test_" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() {
        std::error_code failed;
        std::filesystem::remove_all(path_, failed);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

} // namespace tabrova::testing

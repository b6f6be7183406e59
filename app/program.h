// What the program and the driver start alike: the toolkit's settings and the program's own folder.
#pragma once

#include <filesystem>

namespace tabrova {

// Before the application object: fractional screen scales stay as they are.
void prepareToolkit();

// The folder by the environment, the executable's place and the user's data folder.
std::filesystem::path ownFolder();

// The read-only data that a new folder is filled with; may be missing.
std::filesystem::path sharedDataFolder();

} // namespace tabrova

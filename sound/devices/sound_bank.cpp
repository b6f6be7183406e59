#include "sound/devices/sound_bank.h"

#include "platform/paths.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>

#include <QStandardPaths>

namespace tabrova {

namespace fs = std::filesystem;

namespace {

constexpr std::array DefaultBanks = {"default-GM.sf2", "default-GM.sf3", "default.sf2", "default.sf3"};
constexpr std::array WellKnownBanks = {
    "FluidR3_GM.sf2",        "FluidR3_GM.sf3",        "MuseScore_General_Full.sf2",
    "MuseScore_General.sf2", "MuseScore_General.sf3", "MuseScore_General_Lite.sf3",
    "GeneralUser.sf2",       "GeneralUser GS.sf2",    "GeneralUser-GS.sf2",
    "TimGM6mb.sf2",          "MS Basic.sf3"};
constexpr std::array SystemSubfolders = {"sounds/sf2", "sounds/sf3", "soundfonts"};

bool hasBankName(const fs::path& file) {
    std::string extension = file.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == ".sf2" || extension == ".sf3";
}

std::vector<fs::path> banksIn(const fs::path& folder) {
    std::vector<fs::path> banks;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (hasBankName(entry->path())) banks.push_back(entry->path());
    std::sort(banks.begin(), banks.end());
    return banks;
}

template <std::size_t Count>
std::vector<fs::path> namedIn(const std::vector<fs::path>& folders,
                              const std::array<const char*, Count>& names) {
    std::vector<fs::path> banks;
    for (const char* name : names)
        for (const fs::path& folder : folders)
            banks.push_back(folder / name);
    return banks;
}

} // namespace

bool isSoundBank(const fs::path& file) {
    std::error_code failed;
    if (!fs::is_regular_file(file, failed)) return false;
    std::array<char, 12> head{};
    std::ifstream stream(file, std::ios::binary);
    return stream.read(head.data(), head.size()) && std::memcmp(head.data(), "RIFF", 4) == 0 &&
           std::memcmp(head.data() + 8, "sfbk", 4) == 0;
}

std::vector<fs::path> soundBanks(const SoundBankPlaces& places) {
    std::vector<fs::path> wanted;
    const auto append = [&wanted](const std::vector<fs::path>& more) {
        wanted.insert(wanted.end(), more.begin(), more.end());
    };
    append({places.setting, places.environment});
    if (!places.ownFolder.empty()) append(banksIn(places.ownFolder));
    append(namedIn(places.systemFolders, DefaultBanks));
    append(namedIn(places.systemFolders, WellKnownBanks));
    std::vector<fs::path> found;
    for (const fs::path& bank : wanted)
        if (isSoundBank(bank) && std::find(found.begin(), found.end(), bank) == found.end())
            found.push_back(bank);
    return found;
}

std::vector<fs::path> systemBankFolders() {
    std::vector<fs::path> folders;
    for (const QString& base : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        for (const char* folder : SystemSubfolders)
            folders.push_back(pathOf(base) / folder);
    return folders;
}

} // namespace tabrova

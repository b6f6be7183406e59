// Which sound bank the synthesizer plays: the places where one may stand, in the order in which they count.
#pragma once

#include <QString>

#include <filesystem>
#include <string>
#include <vector>

namespace tabrova {

struct SoundBankPlaces {
    std::filesystem::path setting;     // the user's choice; empty for none
    std::filesystem::path environment; // TABROVA_SOUNDFONT; empty for none
    std::filesystem::path ownFolder;   // any bank in the program's own folder, by name
    std::vector<std::filesystem::path> systemFolders;
};

// The files that are there, best first, each once: the setting, the environment, the own folder's banks, the
// system's default bank, the well-known General MIDI banks.
std::vector<std::filesystem::path> soundBanks(const SoundBankPlaces& places);

// Where systems keep sound banks.
std::vector<std::filesystem::path> systemBankFolders();

// A name as it is shown; what is no text in it becomes the replacement character.
QString shownName(const std::filesystem::path& file);

// An SF2 or SF3 file by its first bytes.
bool isSoundBank(const std::filesystem::path& file);

} // namespace tabrova

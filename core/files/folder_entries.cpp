#include "core/files/folder_entries.h"

#include <algorithm>

namespace tabrova {

namespace fs = std::filesystem;

namespace {

template <class Character>
Character lowered(Character character) {
    const bool capital = character >= Character('A') && character <= Character('Z');
    return capital ? static_cast<Character>(character - 'A' + 'a') : character;
}

bool endsSo(const fs::path& name, std::string_view ending) {
    const fs::path::string_type& text = name.native();
    return ending.size() <= text.size() &&
           std::equal(ending.rbegin(), ending.rend(), text.rbegin(), [](char wanted, auto character) {
               return lowered(fs::path::value_type(wanted)) == lowered(character);
           });
}

bool isOfKind(const fs::directory_entry& entry, EntryKind kind) {
    std::error_code unknown;
    return kind == EntryKind::Files ? entry.is_regular_file(unknown) : entry.is_directory(unknown);
}

} // namespace

std::vector<fs::path> listEntries(const fs::path& folder, EntryKind kind, std::string_view ending) {
    std::vector<fs::path> names;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; entry != end; entry.increment(failed)) {
        fs::path name = entry->path().filename();
        if (endsSo(name, ending) && isOfKind(*entry, kind)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(),
              [](const fs::path& first, const fs::path& second) { return first.native() < second.native(); });
    return names;
}

} // namespace tabrova

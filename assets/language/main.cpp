// Writes the default language file: the built-in texts, each at its line. `default_language FILE`
#include "core/language/language_lines.h"

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: default_language FILE\n";
        return 2;
    }
    std::vector<std::string> lines(static_cast<std::size_t>(tabrova::lastLanguageLine()));
    lines[0] = "Tabrova";
    lines[1] = "English";
    for (const tabrova::FormLines& form : tabrova::languageForms())
        for (const tabrova::LanguageLine& line : form.lines)
            lines[static_cast<std::size_t>(line.number - 1)] = line.text;
    std::ofstream file(argv[1], std::ios::binary);
    for (const std::string& line : lines)
        file << line << "\r\n";
    file.close();
    return file ? 0 : 1;
}

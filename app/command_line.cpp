#include "app/command_line.h"

#include "platform/paths.h"

#include <cstdlib>

namespace tabrova {

namespace {

constexpr int WrongUse = 2;

const QString Usage =
    QStringLiteral("Usage: tabrova [DOCUMENT]\n\n"
                   "Opens a tablature, or a new one.\n\n"
                   "  --help     shows this text\n"
                   "  --version  shows the version\n\n"
                   "TABROVA_HOME names the folder for languages, chords and other small files,\n"
                   "TABROVA_SOUNDFONT the sound bank of the built-in synthesizer.\n");
const QString Version = QStringLiteral("Tabrova 3.0\n");

std::optional<CommandLine> answerTo(const QStringList& words) {
    for (const QString& word : words) {
        if (!word.startsWith("--")) continue;
        if (word == "--help") return CommandLine{{}, Usage, EXIT_SUCCESS};
        if (word == "--version") return CommandLine{{}, Version, EXIT_SUCCESS};
        return CommandLine{{}, "tabrova: there is no option " + word + ". Try: tabrova --help\n", WrongUse};
    }
    return std::nullopt;
}

QString withoutQuotes(const QString& path) {
    return path.startsWith('"') && path.size() >= 2 ? path.mid(1, path.size() - 2) : path;
}

} // namespace

CommandLine readCommandLine(const QStringList& words, const std::function<bool(const QString&)>& exists) {
    if (auto answer = answerTo(words)) return *answer;
    for (qsizetype count = words.size(); count > 0; --count) {
        const QString path = words.mid(0, count).join(' ');
        if (!exists(withoutQuotes(path))) continue;
        const QString rest = words.mid(count).join(' ');
        const QString told = rest.isEmpty()
                                 ? QString()
                                 : "tabrova: one document at a time, so this is not opened: " + rest + "\n";
        return {path, told, std::nullopt};
    }
    return {words.join(' '), {}, std::nullopt};
}

QStringList commandLineWords(int argc, char** argv) {
    QStringList words;
    for (int index = 1; index < argc; ++index)
        words.append(textOf(std::filesystem::path(argv[index])));
    return words;
}

bool isThere(const QString& path) {
    std::error_code failed;
    return !path.isEmpty() && std::filesystem::exists(pathOf(path), failed);
}

} // namespace tabrova

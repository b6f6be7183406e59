// The words of the program's command line: one document, or a question about the program itself.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tabrova {

struct CommandLine {
    QString document; // "" for none
    // What the terminal is told. With an exit code the program ends with that.
    QString told;
    std::optional<int> exitCode;
};

// A path with blanks may come in pieces: as many words as name a file that `exists` make the document, and
// the words behind it are told to be too many. Where no file exists all words are its name. A word that
// begins with two hyphens is no document.
CommandLine readCommandLine(const QStringList& words, const std::function<bool(const QString& path)>& exists);

// The words that the system gave, whatever bytes they are made of.
QStringList commandLineWords(int argc, char** argv);

// Whether a file or a folder stands there.
bool isThere(const QString& path);

} // namespace tabrova

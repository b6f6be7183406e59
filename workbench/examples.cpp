#include "workbench/examples.h"

#include "core/files/folder_entries.h"
#include "forms/text_edges.h"
#include "platform/paths.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr std::size_t MostExamples = 30;

// "amazing-grace" as "Amazing Grace".
QString shownNameOf(const std::filesystem::path& file) {
    QStringList words = textOf(file.stem()).split('-', Qt::SkipEmptyParts);
    for (QString& word : words)
        word.front() = word.front().toUpper();
    return inOneLine(words.isEmpty() ? textOf(file.stem()) : words.join(' '));
}

} // namespace

QList<ExampleDocument> exampleDocuments(const std::filesystem::path& programFolder) {
    const std::filesystem::path folder = programFolder / "examples";
    std::vector<std::filesystem::path> names = listEntries(folder, EntryKind::Files, ".tr3");
    names.resize(std::min(names.size(), MostExamples));
    QList<ExampleDocument> examples;
    for (const std::filesystem::path& name : names)
        examples.append({shownNameOf(name), textOf(folder / name)});
    return examples;
}

} // namespace tabrova

// The documents that come with the program, in its own folder `examples`.
#pragma once

#include <QList>
#include <QString>

#include <filesystem>

namespace tabrova {

struct ExampleDocument {
    QString name; // as it is shown
    QString file; // whole path
};

// In the order of their names.
QList<ExampleDocument> exampleDocuments(const std::filesystem::path& programFolder);

} // namespace tabrova

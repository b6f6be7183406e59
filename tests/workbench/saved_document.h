// A document in a file, with the file's name as its title.
#pragma once

#include "core/document/document_file.h"
#include "core/document/document_operations.h"
#include "platform/paths.h"

#include <QString>

#include <gtest/gtest.h>

namespace tabrova::testing {

// The folder is made if it is not there. Its whole path.
inline QString savedDocument(const std::filesystem::path& file) {
    std::filesystem::create_directories(file.parent_path());
    Document document;
    resetToNewDocument(document);
    document.Title = file.stem().string();
    document.TrackNames = {"first"};
    EXPECT_TRUE(saveDocument(document, file));
    return textOf(file);
}

} // namespace tabrova::testing

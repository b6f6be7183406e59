// A short document whose write fails: what the stream still held back must not be counted as written.
#include "tests/core/document/document_helpers.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/core/files/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova::testing {
namespace {

TEST(ShortSavedFile, AShortDocumentWhoseWriteFailsLeavesNothingOfTheOldFile) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "song.tr3";
    for (const std::size_t most : {0u, 100u, 500u}) {
        Document document;
        resetToNewDocument(document);
        std::ofstream(path, std::ios::binary | std::ios::trunc) << std::string(5000, 'z');
        {
            const FileSizeLimit limit(most);
            EXPECT_FALSE(saveDocument(document, path));
        }
        EXPECT_EQ(document.HasFileName, True16);
        std::ifstream file(path, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(bytes, written(document).substr(0, most));
    }
}

} // namespace
} // namespace tabrova::testing

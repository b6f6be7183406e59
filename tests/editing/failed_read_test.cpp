// Whatever a reader leaves behind when it fails is a document that every command bears.
#include "tests/core/document/damaged_documents.h"
#include "tests/editing/every_command.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tabrova::testing {
namespace {

TEST(FailedRead, LeavesADocumentThatBearsEveryCommand) {
    Document fresh;
    resetToNewDocument(fresh);
    std::ostringstream savedNew;
    documentText(fresh).writeTo(savedNew);
    unsigned seed = 0;
    for (const DamagedDocument& damaged : damagedDocuments()) {
        SCOPED_TRACE(damaged.kind);
        for (int round = 0; round < 4; ++round) {
            Document document;
            resetToNewDocument(document);
            std::istringstream file(damaged.bytes);
            ASSERT_FALSE(readDocument(document, file));
            EveryCommand commands(document, ++seed);
            commands.run(120);
            EXPECT_EQ(document.NoteGrid.columns(), document.ColumnCapacity);
            EXPECT_EQ(document.NoteGrid.rows(), document.RowCapacity);
            EXPECT_EQ(document.TechniqueGrid.columns(), document.ColumnCapacity);
            EXPECT_EQ(std::ssize(document.BarMarkRow), document.ColumnCapacity);
            EXPECT_EQ(std::ssize(document.ClipboardBarMarks), document.ColumnCapacity);
            EXPECT_EQ(std::ssize(document.TuningTable), document.RowCapacity);
            // And a new document is a new document again.
            resetToNewDocument(document);
            std::ostringstream saved;
            documentText(document).writeTo(saved);
            EXPECT_EQ(saved.str(), savedNew.str());
        }
    }
}

} // namespace
} // namespace tabrova::testing

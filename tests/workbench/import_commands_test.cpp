// A document of the previous generation comes in: the question, what becomes of the document that was open,
// and when the page is drawn anew. What the file's fields mean is tested with their reader.
#include "tests/workbench/tool_bench.h"

#include <fstream>

namespace tabrova::testing {
namespace {

class ImportCommandsTest : public ToolBench {
  protected:
    ImportCommandsTest() {
        document().Title = "Old title";
        document().HasFileName = True16;
        document().setNote(3, 2, "9");
        commands.documents.CommonDialog1.fileName = "/somewhere/song.tr3";
    }

    // One staff with a fret in the first and in the last cell, and a separator behind column `separator`.
    static std::string oldFile(int separator = -1) {
        std::string text = "027120    1121212121212";
        for (int row = 0; row < 6; ++row)
            for (int column = 0; column < 32; ++column) {
                const bool fret = (row == 0 && column == 0) || (row == 5 && column == 31);
                text += fret ? "12|" : column == separator && row == 0 ? " #|" : ">>|";
            }
        return text + "|" + "02Me" + "04Tune";
    }
    QString file(const std::string& text) const {
        const QString path = home.filePath("old.trx");
        std::ofstream(path.toStdString(), std::ios::binary) << text;
        return path;
    }
    void import(const std::optional<QString>& answer) {
        files.queueAnswer(answer);
        commands.imports.mnuImportTR211();
    }
    bool drawnAnew() const { return std::ranges::count(log, "act mnuImportTR211") > 0; }
};

TEST_F(ImportCommandsTest, AsksForOldDocuments) {
    import(std::nullopt);
    const auto asked = files.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].question.kind, FileQuestion::Kind::Open);
    EXPECT_EQ(asked[0].question.filter, "Tabrova 2.1x Tablatures|*.trx");
    EXPECT_EQ(asked[0].question.defaultExtension, "trx");
    EXPECT_EQ(asked[0].question.name, "");
}

TEST_F(ImportCommandsTest, TheDocumentIsNewBeforeTheQuestion) {
    tools.loaded = {"frmFileProperties"};
    import(std::nullopt);
    EXPECT_EQ(document().Title, "Untitled");
    EXPECT_EQ(document().note(3, 2), "");
    EXPECT_EQ(document().HasFileName, False16);
    EXPECT_EQ(std::ranges::count(log, "unload frmFileProperties"), 1);
    EXPECT_TRUE(boxes.take().isEmpty()); // nothing asks whether to save
}

TEST_F(ImportCommandsTest, ReadsTheFile) {
    import(file(oldFile()));
    EXPECT_EQ(document().Title, "Tune");
    EXPECT_EQ(document().Author, "Me");
    EXPECT_EQ(document().Tempo, 120);
    EXPECT_EQ(document().TrackInstruments, std::vector<std::string>{"027"});
    EXPECT_EQ(document().note(0, 0), "12");
    EXPECT_EQ(document().note(31, 5), "12");
    EXPECT_EQ(document().ColumnInStaff, 32);
    EXPECT_EQ(document().CurrentColumn, 0);
    EXPECT_EQ(document().HasFileName, False16);
    EXPECT_TRUE(watcher.last.page);
    EXPECT_TRUE(watcher.last.tracks);
}

TEST_F(ImportCommandsTest, ClosesTheGapsOfSeparators) {
    import(file(oldFile(30)));
    EXPECT_EQ(document().ColumnInStaff, 0);
    EXPECT_EQ(document().CurrentColumn, 0);
    EXPECT_EQ(document().barMark(31), ".");
}

// Save asks for a name then, and proposes that of the document's own dialog.
TEST_F(ImportCommandsTest, TheDocumentsOwnFileNameStays) {
    import(file(oldFile()));
    EXPECT_EQ(commands.documents.CommonDialog1.fileName, "/somewhere/song.tr3");
    EXPECT_EQ(commands.imports.CommonDialog2.fileName, home.filePath("old.trx"));
    files.take();
    import(std::nullopt);
    EXPECT_EQ(files.take()[0].question.name, home.filePath("old.trx"));
}

TEST_F(ImportCommandsTest, AFailureKeepsWhatWasReadAndDrawsNothing) {
    import(file(oldFile().substr(0, 40)));
    EXPECT_EQ(document().Tempo, 120);
    EXPECT_EQ(document().note(0, 0), "12");
    EXPECT_EQ(document().Title, "Untitled");
    EXPECT_FALSE(watcher.last.page);
    EXPECT_TRUE(watcher.last.tracks);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(ImportCommandsTest, AFileThatIsNotThereLeavesANewDocument) {
    for (const char* path : {"/nowhere/old.trx", "/", "/dev/zero", ""}) {
        import(QString(path));
        EXPECT_EQ(document().Title, "Untitled") << path;
        EXPECT_EQ(document().Tempo, 480) << path;
        EXPECT_FALSE(drawnAnew()) << path;
    }
    EXPECT_TRUE(boxes.take().isEmpty());
}

} // namespace
} // namespace tabrova::testing

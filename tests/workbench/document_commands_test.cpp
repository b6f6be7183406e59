// The File menu's commands by their steps.
#include "tests/workbench/tool_bench.h"

#include "core/document/document_file.h"
#include "core/document/document_operations.h"
#include "platform/paths.h"

#include <fstream>

namespace tabrova::testing {
namespace {

class DocumentSteps : public ToolBench {
  protected:
    QString file(const char* name) { return textOf(folder() / name); }
    void save(const char* name, const char* title) {
        Document other;
        resetToNewDocument(other);
        other.Title = title;
        other.TrackNames = {"first"};
        ASSERT_TRUE(saveDocument(other, folder() / name));
    }
    DocumentCommands& documents = commands.documents;
};

TEST_F(DocumentSteps, ANewDocumentUnloadsThePropertiesBeforeTheValuesChange) {
    document().Title = "old";
    tools.loaded = {"frmFileProperties"};
    documents.MakeNewDocument();
    EXPECT_EQ(log, (Log{"unload frmFileProperties", "act MakeNewDocument"}));
    EXPECT_EQ(document().Title, "Untitled");
    EXPECT_TRUE(watcher.last.tracks);
    EXPECT_FALSE(watcher.last.trackChosen); // the instruments' list stays where it is
}

TEST_F(DocumentSteps, NewAsksThenMakesThenRedrawsThenShowsTheProperties) {
    boxes.queueAnswer(BoxAnswer::Cancel);
    documents.mnuFileNew();
    EXPECT_EQ(log, Log{});
    boxes.queueAnswer(BoxAnswer::No);
    documents.mnuFileNew();
    EXPECT_EQ(log, (Log{"act mnuFileNew", "open frmFileProperties"}));
    EXPECT_EQ(watcher.last.redraws, 1);
}

TEST_F(DocumentSteps, TheQuestionNamesTheDocumentAndYesSaves) {
    document().Title = "Caf\xE9";
    boxes.queueAnswer(BoxAnswer::Yes);
    files.queueAnswer(file("saved.tr3"));
    EXPECT_TRUE(documents.confirmLeaving());
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.text, QString("Do you want to save the changes to Café?"));
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(asked.first().box.buttons, (QList{BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}));
    EXPECT_TRUE(std::filesystem::exists(folder() / "saved.tr3"));
    EXPECT_EQ(log, Log{"act mnuFileSave"});
    boxes.queueAnswer(BoxAnswer::Cancel);
    EXPECT_FALSE(documents.confirmLeaving());
    boxes.queueAnswer(BoxAnswer::No);
    EXPECT_TRUE(documents.confirmLeaving());
}

TEST_F(DocumentSteps, SavingAsksForANameOnlyOnceAndSaveAsAgain) {
    files.queueAnswer(file("one.tr3"));
    documents.mnuFileSave();
    documents.mnuFileSave();
    EXPECT_EQ(files.take().size(), 1);
    files.queueAnswer(file("two.tr3"));
    documents.mnuSaveAs();
    const auto asked = files.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().question.name, file("one.tr3"));
    EXPECT_TRUE(std::filesystem::exists(folder() / "two.tr3"));
    // The name that was given up is not taken back by a chooser that is cancelled.
    documents.mnuSaveAs();
    EXPECT_EQ(document().HasFileName, False16);
}

TEST_F(DocumentSteps, NothingIsSavedWhileTheItemIsDisabled) {
    menus.disabled = {"mnuFileSave"};
    documents.mnuFileSave();
    EXPECT_TRUE(files.take().isEmpty());
    EXPECT_EQ(log, Log{});
}

TEST_F(DocumentSteps, OpeningMakesANewDocumentThenReadsThenTellsOfTracksAndPanel) {
    save("other.tr3", "Other");
    boxes.queueAnswer(BoxAnswer::No);
    files.queueAnswer(file("other.tr3"));
    documents.mnuFileOpen();
    EXPECT_EQ(document().Title, "Other");
    EXPECT_EQ(log, Log{"act OpenDocNoConfirm"});
    EXPECT_TRUE(watcher.last.tracks && watcher.last.trackPanel && watcher.last.title);
    EXPECT_EQ(watcher.last.redraws, 1);
    EXPECT_EQ(bench.texts.trackPanel, "first selected (Click here to change)");
    boxes.queueAnswer(BoxAnswer::Cancel);
    documents.mnuFileOpen();
    EXPECT_TRUE(files.take().size() == 1); // the first one's
}

TEST_F(DocumentSteps, AReadThatFailsTellsOfTheTracksAndDrawsNothing) {
    save("other.tr3", "Other");
    std::filesystem::resize_file(folder() / "other.tr3", 60);
    documents.CommonDialog1.fileName = file("other.tr3");
    documents.OpenDocNoConfirm(false);
    EXPECT_TRUE(watcher.last.tracks);
    EXPECT_EQ(watcher.last.redraws, 0);
    EXPECT_EQ(bench.texts.trackPanel, "Untitled Track selected (Click here to change)");
}

TEST_F(DocumentSteps, AFileThatIsNotThereLeavesTheDocument) {
    document().Title = "mine";
    documents.CommonDialog1.fileName = file("missing.tr3");
    documents.OpenDocNoConfirm(false);
    EXPECT_EQ(document().Title, "mine");
    EXPECT_EQ(log, Log{});
}

TEST_F(DocumentSteps, TheCommandLineMayBeQuoted) {
    save("other.tr3", "Other");
    documents.OpenCommandLineDocument('"' + file("other.tr3") + '"');
    EXPECT_EQ(document().Title, "Other");
    EXPECT_EQ(documents.CommonDialog1.fileName, file("other.tr3"));
    documents.OpenCommandLineDocument("\"");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Bad Format");
    EXPECT_EQ(document().Title, "Untitled");
}

TEST_F(DocumentSteps, RegisterTheirItems) {
    CommandTable table;
    documents.registerRows(table);
    std::vector<std::string> items;
    for (const CommandTable::ItemRow& row : table.items())
        items.push_back(row.item);
    std::vector<std::string> expected = {"mnuFileNew", "mnuFileOpen", "mnuFileSave", "mnuSaveAs"};
    for (int place = 0; place < 10; ++place)
        expected.push_back("mnuRecentDocument(" + std::to_string(place) + ")");
    expected.emplace_back("mnuRecentClear");
    EXPECT_EQ(items, expected);
    table.items()[3].run();
    EXPECT_EQ(files.take().first().question.kind, FileQuestion::Kind::Save);
    table.items()[2].run();
    EXPECT_EQ(files.take().size(), 1);
    boxes.queueAnswer(BoxAnswer::No);
    table.items()[1].run();
    EXPECT_EQ(files.take().first().question.kind, FileQuestion::Kind::Open);
    boxes.queueAnswer(BoxAnswer::No);
    table.items()[0].run();
    EXPECT_EQ(log.back(), "open frmFileProperties");
}

} // namespace
} // namespace tabrova::testing

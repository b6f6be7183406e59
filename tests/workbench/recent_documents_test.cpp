// The list of recent documents, and the commands that fill and use it.
#include "workbench/recent_documents.h"

#include "tests/workbench/saved_document.h"
#include "tests/workbench/tool_bench.h"

#include <fstream>

namespace tabrova::testing {
namespace {

TEST(RecentDocumentsList, KeepsTheTenNewestEachOnceNewestFirst) {
    MemorySettingsStore settings;
    RecentDocuments recent(settings);
    for (int file = 1; file <= 12; ++file)
        recent.add("/tabs/" + QString::number(file));
    EXPECT_EQ(recent.files().size(), 10);
    EXPECT_EQ(recent.files().first(), "/tabs/12");
    EXPECT_EQ(recent.files().last(), "/tabs/3");
    recent.add("/tabs/5");
    EXPECT_EQ(recent.files().first(), "/tabs/5");
    EXPECT_EQ(recent.files().size(), 10);
    EXPECT_EQ(recent.files().count("/tabs/5"), 1);
    recent.add("");
    EXPECT_EQ(recent.files().first(), "/tabs/5");
    recent.remove("/tabs/12");
    EXPECT_EQ(recent.files()[1], "/tabs/11");
    EXPECT_EQ(RecentDocuments(settings).files(), recent.files()) << "the next run has the same";
    recent.clear();
    EXPECT_TRUE(RecentDocuments(settings).files().isEmpty());
}

TEST(RecentDocumentsList, GapsAndDoublesInTheSettingsArePassedOver) {
    MemorySettingsStore settings;
    settings.SaveSetting("Recent", "Document2", "/b");
    settings.SaveSetting("Recent", "Document5", "/a");
    settings.SaveSetting("Recent", "Document9", "/b");
    settings.SaveSetting("Recent", "Document10", "/never");
    EXPECT_EQ(RecentDocuments(settings).files(), QStringList({"/b", "/a"}));
}

TEST(RecentDocumentsList, NamesAreShownInOneLineOfBearableLength) {
    EXPECT_EQ(listedName("/tabs/my song.tr3"), "my song.tr3");
    EXPECT_EQ(listedName("/tabs/two\nlines\tand a tab.tr3"), "two lines and a tab.tr3");
    EXPECT_EQ(listedName(""), "");
    const QString listed = listedName("/tabs/" + QString(200, 'x'));
    EXPECT_TRUE(listed.startsWith(QString(60, 'x')));
    EXPECT_LT(listed.size(), 66);
}

TEST(RecentDocumentsList, NamesOfAnyBytesComeThroughTheSettingsFile) {
    QTemporaryDir home;
    const QString ini = home.filePath("settings.ini");
    QStringList files;
    for (const char* name : {"/t/100% %0041.tr3", "/t/caf\xE9.tr3", "/t/\xFF\xFE", "/t/\xF0\x9F\x8E\xB8.tr3",
                             "/t/line\nend", "/t/%", "/t/a;b=c\\d\"e, f"})
        files.append(textOf(std::filesystem::path(name)));
    {
        DesktopSettingsStore settings(ini);
        RecentDocuments recent(settings);
        for (qsizetype at = files.size(); at-- > 0;)
            recent.add(files[at]);
    }
    DesktopSettingsStore settings(ini);
    const RecentDocuments recent(settings);
    ASSERT_EQ(recent.files().size(), files.size());
    for (qsizetype at = 0; at < files.size(); ++at)
        EXPECT_EQ(pathOf(recent.files()[at]), pathOf(files[at])) << at;
}

class RecentSteps : public ToolBench {
  protected:
    QString saved(const char* name) { return savedDocument(folder() / name); }
    void run(const std::string& item) {
        CommandTable table;
        commands.registerRows(table);
        for (const CommandTable::ItemRow& row : table.items())
            if (row.item == item) return row.run();
        FAIL() << item;
    }
    DocumentCommands& documents = commands.documents;
    const QStringList& recent() { return documents.recent.files(); }
};

TEST_F(RecentSteps, WhatIsOpenedAndSavedIsRecent) {
    const QString first = saved("first.tr3"), second = saved("second.tr3");
    documents.CommonDialog1.fileName = first;
    documents.OpenDocNoConfirm(false);
    EXPECT_EQ(documents.fileName(), "first.tr3");
    EXPECT_TRUE(watcher.last.recent);
    files.queueAnswer(second);
    documents.OpenDocNoConfirm(true);
    EXPECT_EQ(recent(), QStringList({second, first}));
    files.queueAnswer(textOf(folder() / "third.tr3"));
    documents.mnuSaveAs();
    EXPECT_EQ(documents.fileName(), "third.tr3");
    EXPECT_EQ(recent(), QStringList({textOf(folder() / "third.tr3"), second, first}));
}

TEST_F(RecentSteps, WhatFailedOrWasCancelledIsNot) {
    std::ofstream(folder() / "broken.tr3") << "no document";
    documents.CommonDialog1.fileName = textOf(folder() / "broken.tr3");
    documents.OpenDocNoConfirm(false);
    documents.OpenDocNoConfirm(true); // cancelled
    documents.CommonDialog1.fileName = textOf(folder() / "missing.tr3");
    documents.OpenDocNoConfirm(false);
    files.queueAnswer(textOf(folder() / "no folder" / "a.tr3"));
    documents.mnuSaveAs();
    EXPECT_EQ(recent(), QStringList());
    EXPECT_EQ(documents.fileName(), "");
}

TEST_F(RecentSteps, ANewDocumentHasNoFile) {
    documents.openFile(saved("first.tr3"));
    boxes.queueAnswer(BoxAnswer::No);
    documents.mnuFileNew();
    EXPECT_EQ(documents.fileName(), "");
    EXPECT_EQ(recent().size(), 1);
}

TEST_F(RecentSteps, ARelativeNameIsKeptWhole) {
    saved("first.tr3");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder());
    documents.CommonDialog1.fileName = "./first.tr3";
    documents.OpenDocNoConfirm(false);
    const QString whole = textOf(std::filesystem::current_path() / "first.tr3");
    std::filesystem::current_path(before);
    EXPECT_EQ(recent(), QStringList(whole));
}

TEST_F(RecentSteps, ARecentDocumentAsksToSaveThenOpens) {
    const QString first = saved("first.tr3"), second = saved("second.tr3");
    documents.recent.add(first);
    documents.recent.add(second);
    boxes.queueAnswer(BoxAnswer::Cancel);
    run("mnuRecentDocument(1)");
    EXPECT_EQ(document().Title, "Untitled");
    boxes.queueAnswer(BoxAnswer::No);
    run("mnuRecentDocument(1)");
    EXPECT_EQ(document().Title, "first");
    EXPECT_EQ(recent(), QStringList({first, second}));
    EXPECT_EQ(boxes.take().size(), 2);
    run("mnuRecentDocument(7)");
    EXPECT_EQ(boxes.take().size(), 0) << "there is no eighth";
}

TEST_F(RecentSteps, OneThatIsGoneIsToldAndLeavesTheList) {
    const QString gone = textOf(folder() / "gone.tr3");
    documents.recent.add(gone);
    run("mnuRecentDocument(0)");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.text, "This file is not there any more:\n" + gone);
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    EXPECT_EQ(recent(), QStringList());
    EXPECT_EQ(document().Title, "Untitled");
    EXPECT_TRUE(watcher.last.recent);
}

TEST_F(RecentSteps, TheListIsClearedAtOnce) {
    documents.recent.add(saved("first.tr3"));
    run("mnuRecentClear");
    EXPECT_EQ(recent(), QStringList());
    EXPECT_TRUE(watcher.last.recent);
}

} // namespace
} // namespace tabrova::testing

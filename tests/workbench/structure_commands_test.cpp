// Staves, columns, clipboard and lengths by their items and words; entry by its own; and the ways out of
// Help.
#include "tests/workbench/tool_bench.h"

namespace tabrova::testing {
namespace {

class CommandRows : public ToolBench {
  protected:
    CommandRows() { commands.registerRows(table); }
    void item(const std::string& name) {
        for (const CommandTable::ItemRow& row : table.items())
            if (row.item == name) return row.run();
        ADD_FAILURE() << name;
    }
    void word(std::string_view name) {
        const CommandTable::WordRow* row = table.wordRow(name);
        ASSERT_NE(row, nullptr) << name;
        ASSERT_TRUE(row->run) << name;
        row->run();
    }

    CommandTable table;
};

TEST_F(CommandRows, AreThereOnceForEachItemThatHasACommand) {
    std::set<std::string> items;
    for (const CommandTable::ItemRow& row : table.items())
        EXPECT_TRUE(items.insert(row.item).second) << row.item;
    EXPECT_EQ(items.size(), 15u + 1 + 2 + 3 + 6 + 8 + 4 + 4 + 9 + 2 + 3 + 9 + 8 + 3 + 3);
}

TEST_F(CommandRows, TheWordsOfItemsAreThoseOfTheToolbar) {
    for (const auto& [word, item] : {std::pair{"new", "mnuFileNew"},
                                     {"open", "mnuFileOpen"},
                                     {"save", "mnuFileSave"},
                                     {"print", "mnuFilePrint"},
                                     {"properties", "mnuFileProperties"},
                                     {"playall", "mnuSoundPlayAll"},
                                     {"playfromhere", "mnuPlayFromHere"},
                                     {"stop", "mnuPlaybackStop"},
                                     {"tr3", "mnuNewVersionCheck"}}) {
        const CommandTable::WordRow* row = table.wordRow(word);
        ASSERT_NE(row, nullptr) << word;
        EXPECT_EQ(row->item, item);
        EXPECT_FALSE(row->run);
    }
    EXPECT_EQ(table.wordRow("printpreview"), nullptr);
    EXPECT_EQ(table.wordRow(""), nullptr);
}

TEST_F(CommandRows, TheOnlyStaffIsClearedAfterAYes) {
    document().setNote(3, 0, "5");
    for (const BoxAnswer no : {BoxAnswer::No, BoxAnswer::Cancel}) {
        boxes.queueAnswer(no);
        item("mnuDeleteBar");
        EXPECT_EQ(document().note(3, 0), "5");
    }
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text, "This is the only staff. Do you want to clear it?");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    EXPECT_EQ(asked.first().box.buttons, (QList{BoxAnswer::Yes, BoxAnswer::No}));
    EXPECT_EQ(log, Log{});
    boxes.queueAnswer(BoxAnswer::Yes);
    item("mnuDeleteBar");
    EXPECT_EQ(document().note(3, 0), "");
    EXPECT_EQ(document().StaffCount, 1);
    EXPECT_EQ(log, Log{"act mnuDeleteBar"});
}

TEST_F(CommandRows, AStaffOfSeveralGoesWithoutAQuestion) {
    bench.editor.AppendStaff();
    item("mnuDeleteBar");
    EXPECT_EQ(document().StaffCount, 1);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(CommandRows, ClearWhatTheirNamesSay) {
    for (const auto& [name, all, notes, techniques, marks] :
         {std::tuple{"ClearStaffallall", true, true, true, true},
          {"clearstaffallnorepeats", true, true, true, false},
          {"clearstaffallnotes", true, true, false, false},
          {"clearstaffalltech", true, false, true, false},
          {"clearstaffcurrentall", false, true, true, true},
          {"clearstaffcurrentnorepeats", false, true, true, false},
          {"clearstaffcurrentnotes", false, true, false, false},
          {"clearstaffcurrenttech", false, false, true, false}}) {
        boxes.queueAnswer(BoxAnswer::No);
        item("mnuAddTrack");
        for (const int row : {0, 6}) {
            document().setNote(2, row, "5");
            document().setTechnique(2, row, "v");
        }
        document().setBarMark(2, ".");
        item(name);
        EXPECT_EQ(document().note(2, 0), all && notes ? "" : "5") << name;
        EXPECT_EQ(document().note(2, 6), notes ? "" : "5") << name;
        EXPECT_EQ(document().technique(2, 0), all && techniques ? "" : "v") << name;
        EXPECT_EQ(document().technique(2, 6), techniques ? "" : "v") << name;
        EXPECT_EQ(document().barMark(2), marks ? "" : ".") << name;
        commands.documents.MakeNewDocument();
    }
}

TEST_F(CommandRows, AddStavesBeforeBehindAndAtTheEnd) {
    document().setNote(0, 0, "1");
    item("mnuEditNewBarBeforeCurrent");
    EXPECT_EQ(document().note(32, 0), "1");
    item("mnuEditNewBarAfterCurrentBar");
    EXPECT_EQ(document().note(64, 0), "1");
    item("mnuEditnewBarAtEndofDocument");
    EXPECT_EQ(document().note(64, 0), "1");
    EXPECT_EQ(document().StaffCount, 4);
}

TEST_F(CommandRows, MoveColumnsOnAllTracksOrOnOne) {
    boxes.queueAnswer(BoxAnswer::No);
    item("mnuAddTrack");
    document().setNote(0, 0, "1");
    document().setNote(0, 6, "2");
    const auto expect = [this](int first, int second) {
        EXPECT_EQ(document().note(first, 0), "1");
        EXPECT_EQ(document().note(second, 6), "2");
    };
    item("mnuEditInsertNoteOnAllTracks");
    expect(1, 1);
    item("mnuEditInsertNoteOnCurrentTrack");
    expect(1, 2);
    item("mnuEditRemoveNoteonCurrentTrack");
    expect(1, 1);
    item("mnuEditRemoveNoteonAllTracks");
    expect(0, 0);
}

TEST_F(CommandRows, CopyAndPaste) {
    for (int index = 0; index < 8; ++index) {
        item("mnuCopyNextBeat(" + std::to_string(index) + ")");
        EXPECT_EQ(document().ClipboardLength, index + 1);
    }
    boxes.queueAnswer(BoxAnswer::No);
    item("mnuAddTrack");
    document().setNote(0, 0, "1");
    document().setNote(0, 6, "2");
    item("mnuCopyNextBeat(0)");
    item("mnuEditPaste(1)");
    EXPECT_EQ(document().note(1, 0), "");
    EXPECT_EQ(document().note(1, 6), "2");
    item("mnuEditPaste(0)");
    EXPECT_EQ(document().note(1, 0), "1");
    EXPECT_EQ(document().note(2, 6), "2");
    item("mnuCopyStaff");
    EXPECT_EQ(document().ClipboardLength, 32);
    EXPECT_EQ(log.back(), "act mnuCopyStaff");
}

TEST_F(CommandRows, TheWordsOfLengthsSetThem) {
    for (const auto& [name, columns] : {std::pair{"sixteenthnote", 1},
                                        {"eighthnote", 2},
                                        {"triplet", 3},
                                        {"quarternote", 4},
                                        {"halfnote", 8},
                                        {"wholenote", 16}}) {
        for (int column = 0; column < 32; ++column)
            document().setNote(column, 0, "");
        document().setNote(0, 0, "1");
        document().setNote(5, 0, "2");
        word(name);
        EXPECT_EQ(document().note(columns, 0), "2") << name;
    }
}

TEST_F(CommandRows, TheItemsOfTheNoteMenuStandForKeys) {
    document().setNote(0, 0, "5");
    document().setTechnique(0, 0, "v");
    item("mnuNoteDeleteNote");
    EXPECT_EQ(document().note(0, 0), "");
    EXPECT_EQ(document().technique(0, 0), "v");
    item("mnuNoteDeleteTechnique");
    EXPECT_EQ(document().technique(0, 0), "");
    item("mnuInsertSeparator");
    EXPECT_EQ(document().barMark(0), ".");
    item("mnuInsertOpenRepeat");
    EXPECT_EQ(document().barMark(0), "r");
    item("mnuNoteRemoveBar");
    EXPECT_EQ(document().barMark(0), "");
    item("mnuInsertClosedRepeat");
    ASSERT_TRUE(watcher.last.panel);
    EXPECT_EQ(watcher.last.panel->panel, Panel::Repeat);
}

TEST_F(CommandRows, TheWordsOfTechniquesStoreThem) {
    for (const auto& [name, text] : {std::pair{"hammer", "h"},
                                     {"slide", "s"},
                                     {"vibrato", "v"},
                                     {"whammy", "w"},
                                     {"dive", "d"},
                                     {"ghostnote", "g"},
                                     {"harmonic", "m"},
                                     {"fade", "f"},
                                     {"tap", "t"},
                                     {"slap", "l"},
                                     {"pop", "o"},
                                     {"ring", "r"},
                                     {"staccato", "."}}) {
        word(name);
        EXPECT_EQ(document().technique(0, 0), text) << name;
    }
    word("dead");
    EXPECT_EQ(document().note(0, 0), "x");
    word("jump");
    EXPECT_EQ(document().note(0, 0), ">");
    word("bend");
    ASSERT_TRUE(watcher.last.panel);
    EXPECT_EQ(watcher.last.panel->panel, Panel::Bend);
}

TEST_F(CommandRows, PlainEntryAndPowerChordsExcludeEachOther) {
    item("mnuCCP");
    EXPECT_TRUE(bench.editor.modes.powerChord);
    EXPECT_TRUE(menus.isChecked("mnuCCP"));
    EXPECT_FALSE(menus.isChecked("mnuStandard"));
    item("mnuStandard");
    EXPECT_FALSE(bench.editor.modes.powerChord);
    EXPECT_FALSE(menus.isChecked("mnuCCP"));
    EXPECT_TRUE(menus.isChecked("mnuStandard"));
    menus.setChecked("mnuIntelligent", true);
    item("mnuIntelligent");
    EXPECT_TRUE(bench.editor.modes.intelligent);
    menus.setChecked("mnuIntelligent", false);
    item("mnuIntelligent");
    EXPECT_FALSE(bench.editor.modes.intelligent);
}

TEST_F(CommandRows, TheAddressesAreThoseOfTheInstallation) {
    item("mnuTechSupport");
    item("mnuNewVersionCheck");
    settings->SaveSetting("Installation", "SupportAddress", "mailto:else");
    settings->SaveSetting("Installation", "UpdatePage", "https://else");
    item("mnuTechSupport");
    item("mnuNewVersionCheck");
    EXPECT_EQ(addresses.take(),
              QStringList({"mailto:support@tabrova.invalid", "https://tabrova.invalid/update", "mailto:else",
                           "https://else"}));
}

} // namespace
} // namespace tabrova::testing

// The tracks' commands by their steps: what is asked, sent and told, and in which order.
#include "editing/track_commands.h"

#include "editing/track_texts.h"
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

using Messages = std::vector<ShortMessage>;

// A question that looks at the document while it is asked.
class LookingBoxes : public RecordingMessageBoxes {
  public:
    BoxAnswer ask(const MessageBox& box) override {
        if (whenAsked) whenAsked();
        return RecordingMessageBoxes::ask(box);
    }
    std::function<void()> whenAsked;
};

class TrackSteps : public EditorTest {
  protected:
    TrackSteps() {
        window.take();
        device.take();
    }

    LookingBoxes boxes;
    PlayerState player;
    TrackCommands tracks{parts, editor, player, boxes};
};

TEST_F(TrackSteps, AddTrackGrowsTheGridsThenAsksThenAppendsTheRowsThenChoosesThenSetsTheFlag) {
    boxes.whenAsked = [this] {
        EXPECT_EQ(document.RowCapacity, 12);
        EXPECT_EQ(document.TrackNames.size(), 1u);
        EXPECT_EQ(document.TrackCount, 1);
    };
    boxes.queueAnswer(BoxAnswer::No);
    tracks.AddTrack();
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text, "Is this to be a percussion track?");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Question);
    EXPECT_EQ(document.TrackCount, 2);
    EXPECT_EQ(document.CurrentTrack, 2);
    EXPECT_TRUE(document.isGuitarTrack(2));
    EXPECT_EQ(device.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 24, 0}}));
    const Changes told = window.take();
    EXPECT_TRUE(told.tracks);
    EXPECT_TRUE(told.trackChosen);
    EXPECT_TRUE(told.trackPanel);
    EXPECT_EQ(told.redraws, 2);
    EXPECT_EQ(texts.trackPanel, "Track Untitled Track");
    EXPECT_EQ(texts.statistics, "Track 2 of 2, Staff 1 of 1");
    EXPECT_EQ(window.lastAct, "AddTrack");
}

TEST_F(TrackSteps, TheWindowCanFollowANewSizeWhileTheQuestionIsOpen) {
    boxes.whenAsked = [this] {
        resizePage(640, 472);
        EXPECT_EQ(window.lastAct, "pageResized");
        EXPECT_EQ(window.take().redraws, 2);
    };
    boxes.queueAnswer(BoxAnswer::No);
    tracks.AddTrack();
    EXPECT_EQ(window.lastAct, "AddTrack");
    EXPECT_EQ(window.take().redraws, 2);
}

TEST_F(TrackSteps, OnlyNoMakesAGuitarTrack) {
    for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::Cancel, BoxAnswer::Ok}) {
        boxes.queueAnswer(answer);
        tracks.AddTrack();
        EXPECT_FALSE(document.isGuitarTrack(document.TrackCount));
    }
}

TEST_F(TrackSteps, NothingIsAddedOrRemovedDuringPlayback) {
    makeThreeTracks();
    player.playing = true;
    tracks.AddTrack();
    tracks.mnuKillTrack();
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_EQ(document.TrackCount, 3);
    EXPECT_EQ(document.RowCapacity, 18);
    EXPECT_EQ(window.take(), Changes());
}

TEST_F(TrackSteps, ADocumentThatCannotGrowIsNotAskedFor) {
    document.TrackCount = std::numeric_limits<std::int16_t>::max();
    tracks.AddTrack();
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_EQ(document.TrackNames.size(), 1u);
}

TEST_F(TrackSteps, TheOnlyTrackStays) {
    tracks.mnuKillTrack();
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.text, "This is the only track. It cannot be removed.");
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    EXPECT_EQ(document.TrackCount, 1);
    EXPECT_EQ(window.take(), Changes());
}

TEST_F(TrackSteps, ATrackGoesAfterAYesAndTheFirstIsChosen) {
    makeThreeTracks();
    document.TrackNames = {"one", "two", "three"};
    document.CurrentTrack = 2;
    document.CurrentString = 4;
    boxes.whenAsked = [this] { EXPECT_EQ(document.TrackCount, 3); };
    boxes.queueAnswer(BoxAnswer::Yes);
    tracks.mnuKillTrack();
    const auto asked = boxes.take();
    EXPECT_EQ(asked.first().box.text, "Do you want to remove the track 'two' ?");
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Question);
    EXPECT_EQ(document.TrackNames, (std::vector<std::string>{"one", "three"}));
    EXPECT_EQ(document.CurrentTrack, 1);
    EXPECT_EQ(document.RowCapacity, 12);
    const Changes told = window.take();
    EXPECT_TRUE(told.tracks && told.trackChosen && told.cursor);
    EXPECT_EQ(window.lastAct, "mnuKillTrack");
    for (const BoxAnswer no : {BoxAnswer::No, BoxAnswer::Cancel}) {
        boxes.whenAsked = nullptr;
        boxes.queueAnswer(no);
        tracks.mnuKillTrack();
        EXPECT_EQ(document.TrackCount, 2);
        EXPECT_EQ(window.take(), Changes());
    }
}

TEST_F(TrackSteps, ALongNameIsAskedForByItsBeginning) {
    makeThreeTracks();
    document.TrackNames[0] = std::string(1000, 'a') + "b";
    boxes.queueAnswer(BoxAnswer::No);
    tracks.mnuKillTrack();
    EXPECT_TRUE(boxes.take().first().box.text.endsWith(QString("a") + QChar(0x2026) + "' ?"));
}

TEST_F(TrackSteps, AClickOnATrackWritesThePanelAndSendsItsProgramBeforeTheRedraw) {
    makeThreeTracks();
    document.TrackNames = {"one", "t\xE9", "three"};
    tracks.TrackNames_Click(1);
    EXPECT_EQ(document.CurrentTrack, 2);
    EXPECT_EQ(texts.trackPanel, "Track t\xC3\xA9");
    EXPECT_EQ(device.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 30, 0}}));
    const Changes told = window.take();
    EXPECT_TRUE(told.trackChosen);
    EXPECT_FALSE(told.tracks);
    EXPECT_EQ(told.redraws, 1);
    tracks.TrackNames_Click(-1);
    EXPECT_EQ(document.CurrentTrack, 2);
    EXPECT_EQ(window.take(), Changes());
}

TEST_F(TrackSteps, AProgramThatIsNoNumberIsNotSent) {
    document.TrackInstruments = {"guitar"};
    tracks.TrackNames_Click(0);
    EXPECT_TRUE(device.take().empty());
}

TEST_F(TrackSteps, ANameIsWrittenAndTheTrackChosenAfresh) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    tracks.setName("lead");
    EXPECT_EQ(document.TrackNames[1], "lead");
    EXPECT_EQ(texts.trackPanel, "Track lead");
    Changes told = window.take();
    EXPECT_TRUE(told.tracks && told.trackChosen);
    tracks.setName(std::nullopt);
    EXPECT_EQ(document.TrackNames[1], "lead");
    told = window.take();
    EXPECT_TRUE(told.tracks && told.trackChosen);
}

TEST_F(TrackSteps, AnInstrumentIsWrittenAsTextAndSent) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    tracks.setInstrument(73);
    EXPECT_EQ(document.TrackInstruments, (std::vector<std::string>{"24", "73", "0"}));
    EXPECT_EQ(device.take(), (Messages{{0xB0, 0, 0x80}, {0xC0, 73, 0}}));
    window.take();
    tracks.instrumentChosen();
    const Changes told = window.take();
    EXPECT_TRUE(told.instrument);
    EXPECT_EQ(told.redraws, 1);
}

TEST_F(TrackSteps, AVolumeIsWrittenOnlyWhenThereAreTracks) {
    makeThreeTracks();
    document.CurrentTrack = 3;
    tracks.setVolume(61);
    EXPECT_EQ(document.TrackVolumes, (std::vector<std::string>{"100", "90", "61"}));
    document.TrackCount = 0;
    tracks.setVolume(99);
    EXPECT_EQ(document.TrackVolumes.back(), "61");
    EXPECT_EQ(window.take().redraws, 0);
}

TEST_F(TrackSteps, ATuningIsAssignedToldAndRedrawn) {
    makeThreeTracks();
    document.CurrentTrack = 2;
    tracks.assignTuning(11, 12, 13, 14, 15, 16);
    for (int string = 0; string < 6; ++string)
        EXPECT_EQ(document.TuningTable[static_cast<std::size_t>(6 + string)], 16 - string);
    const Changes told = window.take();
    EXPECT_TRUE(told.tuning);
    EXPECT_EQ(told.redraws, 1);
}

TEST_F(TrackSteps, TheListComesIntoViewAndThePanelIsWrittenWithoutARedraw) {
    tracks.mnuChoose();
    Changes expected;
    expected.trackListOpens = true;
    EXPECT_EQ(window.take(), expected);
    tracks.showTrackPanel();
    expected = {};
    expected.trackPanel = true;
    EXPECT_EQ(window.take(), expected);
    tracks.showChosen();
    expected = {};
    expected.trackChosen = true;
    EXPECT_EQ(window.take(), expected);
}

TEST_F(TrackSteps, RegisterTheirItems) {
    CommandTable table;
    tracks.registerRows(table);
    std::vector<std::string> items;
    for (const CommandTable::ItemRow& row : table.items())
        items.push_back(row.item);
    EXPECT_EQ(items, (std::vector<std::string>{"mnuAddTrack", "mnuKillTrack", "mnuChoose"}));
    table.items()[2].run();
    EXPECT_TRUE(window.take().trackListOpens);
    boxes.queueAnswer(BoxAnswer::No);
    table.items()[0].run();
    EXPECT_EQ(document.TrackCount, 2);
    boxes.queueAnswer(BoxAnswer::Yes);
    table.items()[1].run();
    EXPECT_EQ(document.TrackCount, 1);
}

} // namespace
} // namespace tabrova::testing

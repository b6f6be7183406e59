// Random acts on the percussion editor over a document with several tracks and staves, each compared with a
// plain model that was written on its own.
#include "tests/tools/percussion_editor/plain_percussion.h"
#include "tests/tools/random_window_acts.h"
#include "tools/percussion_editor/frmPercussion.h"

#include <QCheckBox>
#include <QMouseEvent>

namespace tabrova::testing {
namespace {

constexpr int PageWidth = 984, PageHeight = 372; // three staves
constexpr int LastColumn = 930;                  // a place in it, from the left

class RandomPercussionActs : public RandomWindowActs<frmPercussion> {
  protected:
    RandomPercussionActs() {
        makeTracks();
        bench.view.picDocument.resize(PageWidth, PageHeight);
        bench.surroundings.page = {0, 204, PageWidth, PageHeight};
        bench.editor.AppendStaff();
        bench.editor.pageResized();
        model.editor.guitar = {{1, true}, {2, false}, {3, true}, {4, false}};
        model.editor.staffCount = 2;
        model.editor.resize(PageWidth, PageHeight);
        midi.take();
    }
    void makeTracks() {
        document().TrackCount = 4;
        ResizeGrids(document(), 32, 24);
        document().GuitarTrackFlags = {True16, False16, True16, False16};
        document().TrackNames = {"a", "b", "c", "d"};
        document().TrackVolumes = {"127", "100", "90", "61"};
        document().TrackInstruments = {"24", "25", "26", "0"};
        model.tracks.volumes = {127, 100, 90, 61};
        model.tracks.instruments = {24, 25, 26, 0};
        for (int row = 0; row < 24; ++row) {
            model.tracks.tuning.push_back(1 + row);
            document().TuningTable[static_cast<std::size_t>(row)] = static_cast<std::int16_t>(1 + row);
        }
    }
    void open() {
        model.open();
        window = std::make_unique<frmPercussion>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
    }
    void act() {
        using A = RandomPercussionActs;
        doOne<A>(*this, {&A::clickDrum,   &A::clickDrum,   &A::clickDrum,   &A::clickDrum,   &A::nextDrum,
                         &A::pressArrow,  &A::pressArrow,  &A::pressArrow,  &A::pressArrow,  &A::walk,
                         &A::pressDelete, &A::pressDelete, &A::toggleAuto,  &A::placeCursor, &A::placeCursor,
                         &A::scroll,      &A::chooseTrack, &A::chooseTrack, &A::typeOnPage,  &A::typeOnPage,
                         &A::chooseModes, &A::play,        &A::tickStopper, &A::tickStopper, &A::clickNothing,
                         &A::resize,      &A::resize,      &A::reopen});
    }
    ::testing::AssertionResult sameAsModel() {
        const std::pair<std::string, std::string> both[] = {
            {sentText(), midiText(std::exchange(desk.midi, {}))},
            {askedText(), ""},
            {shown(), wanted()},
            {cells(), plainCells()},
            {cursor(), plainCursor()}};
        for (const auto& [real, plain] : both)
            if (real != plain)
                return ::testing::AssertionFailure() << "the window:\n" << real << "the model:\n" << plain;
        return ::testing::AssertionSuccess();
    }

    PlainPercussion model{desk};

  private:
    std::string shown() {
        std::ostringstream text;
        const auto& automatic = at<QCheckBox>("chkAuto");
        text << window->windowTitle().toStdString() << "\ndrums " << rowsText("List1")
             << at("List1").isEnabled() << "\nbox " << automatic.text().toStdString() << automatic.isChecked()
             << "\n"
             << at<QLabel>("Label1").text().toStdString() << "\nstopper "
             << (model.stopper ? timerText("tmrsndStopper") : timerText("tmrsndStopper").substr(0, 3)) << "\n"
             << placeText();
        for (const PlainPicture& picture : PlainPictures)
            text << at(picture.name).toolTip().toStdString() << at(picture.name).isEnabled() << "\n";
        return text.str();
    }
    std::string wanted() const {
        std::ostringstream text;
        text << "Percussion Editor\ndrums ";
        for (const std::string& drum : PlainDrums)
            text << drum << "|";
        text << " chosen " << model.chosen << !model.playing << "\nbox Automatically move to the next beat"
             << model.automatic
             << "\nPosition this window so that you can see your document beneath it. Then use the arrow "
                "buttons  on the left to navigate around the document, and click a drum to write it to the "
                "document.\nstopper "
             << (model.stopper ? "on " + std::to_string(model.stopperInterval) : "off");
        text << "\n" << wantedPlaceText();
        for (const PlainPicture& picture : PlainPictures)
            text << picture.toolTip << !model.playing << "\n";
        return text.str();
    }
    std::string placeText() const {
        std::ostringstream text;
        const QRect list = at("List1").geometry();
        text << "list " << list.width() << " " << list.height() << "\nlabel " << at("Label1").y() << "\n";
        for (const PlainPicture& picture : PlainPictures)
            text << picture.name << " " << at(picture.name).y() << "\n";
        return text.str();
    }
    std::string wantedPlaceText() const {
        std::ostringstream text;
        const int h = window->height();
        text << "list " << window->width() << " " << h - 110 << "\nlabel " << h - 80 << "\n";
        for (const PlainPicture& picture : PlainPictures)
            text << picture.name << " " << h - picture.fromBottom << "\n";
        return text.str();
    }

    std::string cells() {
        std::ostringstream text;
        text << document().ColumnCapacity << " by " << document().RowCapacity << "\n";
        for (int column = 0; column < document().ColumnCapacity; ++column) {
            for (int row = 0; row < document().RowCapacity; ++row) {
                const auto note = document().note(column, row);
                const auto technique = document().technique(column, row);
                if (!note.empty()) text << column << "," << row << " " << note << "\n";
                if (!technique.empty()) text << column << "," << row << " technique " << technique << "\n";
            }
            if (!document().barMark(column).empty())
                text << column << " mark " << document().barMark(column) << "\n";
        }
        return text.str();
    }
    std::string plainCells() const {
        std::ostringstream text;
        text << model.editor.staffCount * 32 << " by 24\n";
        for (const auto& [place, note] : model.editor.notes)
            text << place.first << "," << place.second << " " << note << "\n";
        return text.str();
    }
    std::string cursor() {
        std::ostringstream text;
        const Rect& marker = bench.editor.page().nCursor;
        text << document().StaffCount << " staves, at " << document().CurrentStaff << " "
             << document().ColumnInStaff << " " << document().CurrentString << " track "
             << document().CurrentTrack << ", top " << document().TopStaff << " scroll "
             << bench.editor.scroll().value << " of " << bench.editor.scroll().maximum << ", marker "
             << marker.left << " " << marker.top << "\n";
        return text.str();
    }
    std::string plainCursor() const {
        std::ostringstream text;
        const PlainEditor& plain = model.editor;
        text << plain.staffCount << " staves, at " << plain.staff << " " << plain.column << " "
             << plain.string << " track " << plain.track << ", top " << plain.topStaff << " scroll "
             << plain.scrollValue << " of " << plain.scrollMaximum << ", marker " << plain.markerLeft << " "
             << plain.markerTop << "\n";
        return text.str();
    }

    void clickDrum() {
        const auto row =
            static_cast<int>(below(4) == 0 && model.chosen >= 0 ? static_cast<std::size_t>(model.chosen)
                                                                : below(PlainDrums.size()));
        told = "drum " + PlainDrums[static_cast<std::size_t>(row)];
        clickRow("List1", static_cast<std::size_t>(row));
        model.clickDrum(row);
    }
    // Two quick clicks are two clicks.
    void clickDrumTwice() {
        if (model.playing) return clickDrum();
        clickDrum();
        told += " twice";
        auto& list = at<QListWidget>("List1");
        const QPoint place = list.visualItemRect(list.item(model.chosen)).center();
        mouse(*list.viewport(), QEvent::MouseButtonDblClick, place);
        mouse(*list.viewport(), QEvent::MouseButtonRelease, place);
        model.clickDrum(model.chosen);
    }
    // With a key held down it is a click all the same.
    void clickDrumWithKey() {
        const auto row = below(2) == 0 && model.chosen >= 0 ? model.chosen : static_cast<int>(below(46));
        told = "drum " + PlainDrums[static_cast<std::size_t>(row)] + " with a key held down";
        auto& list = at<QListWidget>("List1");
        list.scrollToItem(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton,
                          below(2) == 0 ? Qt::ControlModifier : Qt::ShiftModifier,
                          list.visualItemRect(list.item(row)).center());
        model.clickDrum(row);
    }
    void nextDrum() {
        if (model.chosen < 0) return clickDrum();
        const int last = static_cast<int>(PlainDrums.size()) - 1;
        const auto [key, to] = oneOf<std::pair<Qt::Key, int>>({{Qt::Key_Down, model.chosen + 1},
                                                               {Qt::Key_Up, model.chosen - 1},
                                                               {Qt::Key_Home, 0},
                                                               {Qt::Key_End, last}});
        const int row = std::clamp(to, 0, last);
        told = "by key to drum " + std::to_string(row);
        QTest::keyClick(&at("List1"), key);
        if (row != model.chosen) model.clickDrum(row);
    }
    void mouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        const bool held = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, widget.mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          held ? Qt::MouseButtons(button) : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    // The button acts as it goes down. Wherever the mouse goes then nothing more comes of it.
    void pressPicture(std::size_t picture) {
        told = PlainPictures[picture].toolTip;
        QWidget& button = at(PlainPictures[picture].name);
        model.pressPicture(picture);
        if (below(4) == 0) return QTest::keyClick(&button, below(2) == 0 ? Qt::Key_Space : Qt::Key_Return);
        const QPoint inside = button.rect().center(), outside(-20, 500);
        const bool second = below(4) == 0;
        mouse(button, second ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, inside);
        EXPECT_TRUE(sameAsModel()) << told << ", and the button is still down";
        if (below(2) == 0) mouse(button, QEvent::MouseMove, outside);
        if (const bool back = below(2) == 0; back) {
            mouse(button, QEvent::MouseMove, inside);
            told += " with the mouse led away and back";
            mouse(button, QEvent::MouseButtonRelease, inside);
        } else {
            mouse(button, QEvent::MouseButtonRelease, outside);
        }
    }
    void pressArrow() { pressPicture(below(4)); }
    void pressDelete() { pressPicture(4); }
    // To an edge of the document and over it.
    void walk() {
        const std::size_t picture = below(4);
        if (picture == 0 && model.editor.staffCount > 8) return pressArrow();
        for (std::size_t steps = 1 + below(40); steps > 0; --steps)
            pressPicture(picture);
    }
    void toggleAuto() {
        told = "automatically";
        QTest::keyClick(&at("chkAuto"), Qt::Key_Space);
        model.automatic = !model.automatic;
    }
    void placeCursor() {
        const int x = below(3) == 0 ? LastColumn : static_cast<int>(below(PageWidth));
        const int y = static_cast<int>(below(PageHeight));
        const bool atTheEnd = below(2) == 0;
        told = "the page at " + std::to_string(x) + ", " + std::to_string(y);
        if (atTheEnd) scrollTo(model.editor.scrollMaximum);
        bench.editor.picDocument_MouseDown(MouseButton::Left, x, y);
        model.editor.mouse(1, x, y);
    }
    void scrollTo(int value) {
        bench.editor.VScroll1_Change(value);
        model.editor.scroll(value);
    }
    void scroll() {
        const auto value = 1 + static_cast<int>(below(10));
        told = "scroll to " + std::to_string(value);
        scrollTo(value);
    }
    void chooseTrack() {
        const auto track = static_cast<std::int16_t>(1 + below(4));
        told = "track " + std::to_string(track);
        document().CurrentTrack = track;
        bench.editor.refreshdrawing();
        model.editor.track = track;
        model.editor.redraw();
    }
    void typeOnPage() {
        const int code = oneOf<int>({'0', '1', '2', '5', '9', 'X', 'J'});
        told = std::string("key ") + static_cast<char>(code);
        bench.editor.picDocument_KeyDown(code, 0);
        model.key(code);
    }
    void chooseModes() {
        const auto mode = static_cast<std::int16_t>(below(3));
        const auto tempo = oneOf<std::int16_t>({480, 20, 2000, 700, 350});
        const bool powerChord = below(2) == 0;
        told = "sound mode " + std::to_string(mode) + (powerChord ? " with chords" : "");
        document().RealtimeMode = mode;
        document().Tempo = tempo;
        bench.editor.modes.powerChord = powerChord;
        model.tracks.realtimeMode = mode;
        model.tracks.tempo = tempo;
        model.editor.powerChord = powerChord;
    }
    // The document plays for an act or some, mostly.
    void play() {
        told = model.playing ? "stop" : "play";
        if (model.playing) {
            commands.playback.mnuPlaybackStop();
            desk.AllNotesOff();
        } else {
            commands.playback.play(below(2) == 0 ? PlayFrom::Start : PlayFrom::Cursor);
        }
        model.playing = !model.playing;
    }
    void tickStopper() {
        told = "silence";
        EXPECT_EQ(timers.timers()["tmrsndStopper"]->fire(), model.stopper);
        model.tickStopper();
    }
    // The other buttons of the mouse write no drum.
    void clickNothing() {
        told = "other button";
        auto& list = at<QListWidget>("List1");
        QListWidgetItem* item = list.item(static_cast<int>(below(PlainDrums.size())));
        list.scrollToItem(item);
        const QPoint place = list.visualItemRect(item).center();
        QTest::mouseClick(list.viewport(), below(2) == 0 ? Qt::RightButton : Qt::MiddleButton, {}, place);
        model.chosen = chosenRow("List1");
    }
    void resize() {
        const QSize size(110 + static_cast<int>(below(800)), 200 + static_cast<int>(below(500)));
        told = "resize to " + std::to_string(size.width()) + " by " + std::to_string(size.height());
        window->resize(size);
        QApplication::processEvents();
    }
    void reopen() {
        told = "close";
        window->Form_Unload();
        window.reset();
        open();
    }
};

TEST_P(RandomPercussionActs, LeaveWindowAndDocumentLikeThePlainModel) {
    chance.seed(GetParam());
    open();
    ASSERT_TRUE(sameAsModel());
    std::string acts;
    for (int count = 0; count < 2000; ++count) {
        act();
        acts = told + "; " + acts.substr(0, 300);
        ASSERT_FALSE(HasFailure()) << acts;
        ASSERT_TRUE(sameAsModel()) << "after " << count << " acts, the last first: " << acts;
    }
    EXPECT_EQ(ends, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPercussionActs, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing

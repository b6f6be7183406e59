// What a user may do to the chord manager and behind its back, each act on the window and on the model alike.
// Which act comes next, and on what, is chance from a seed.
#pragma once

#include "tests/tools/chord_manager/checked_chord_window.h"

#include <random>

namespace tabrova::testing {

class ChordActs : public CheckedChordWindowTest {
  protected:
    // Does one act and tells what it was.
    std::string act();

    std::mt19937 chance;

  private:
    struct Act {
        std::size_t weight;
        void (ChordActs::*run)();
    };
    static const std::vector<Act>& acts();

    std::size_t below(std::size_t end) { return chance() % end; }
    template <class Value>
    const Value& oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }
    void told(const std::string& text) { told_ += text; }

    // The calculator and the options.
    void chooseKey();
    void chooseType();
    void chooseStyle();
    void chooseView();
    void moveSlider();
    void togglePlayNow();
    void toggleNoteByNote();
    void toggleTranspose();
    void clickDisplayBox();
    void newType();
    void deleteType();

    // Sound.
    void play();
    void tickPlayer();
    void tickStopper();
    void strumPress();
    void strumMove();
    void strumRelease();
    int strumHeight();

    // The bank.
    void chooseChord();
    void find();
    void enterFret();
    void nameChord();
    void saveChord();
    void deleteChord();

    // Behind the window's back.
    void makeChordFile();
    void makeTypeFile();
    void removeFile();
    void readListAgain();
    void reopen();

    // The document.
    void addChord();
    void removeChord();
    void moveCursor();
    void changeTrack();
    void togglePowerChord();
    bool adderIsShown();

    // Down or up from the chosen row. The new row, if there is one.
    std::optional<std::size_t> stepRow(const QString& list, const PlainList& rows);
    bool answerNext(bool asked);
    std::string binary(std::size_t bytes);

    std::string told_;
    Qt::MouseButtons held_;
};

} // namespace tabrova::testing

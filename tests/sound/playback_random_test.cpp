// Random documents, message by message and state by state, against a plain player that calls itself.
#include "tests/sound/plain_player.h"
#include "tests/sound/player_helpers.h"

#include <algorithm>
#include <random>
#include <span>

namespace tabrova::testing {
namespace {

constexpr int Documents = 600;
constexpr int MostTicks = 200;

class RandomPlayback : public PlayerTest, public ::testing::WithParamInterface<unsigned> {
  protected:
    struct Tally {
        int documents = 0, endless = 0, ended = 0, ticks = 0, jumps = 0, messages = 0;
    };

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }
    bool oneIn(int count) { return below(count) == 0; }
    const char* oneOf(std::span<const char* const> texts) {
        return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
    }

    std::string anyNote() {
        static const char* const junk[] = {"abc", "2.5",    "3.5",    " 3 ", "1e2", "-1",   "300", "40000",
                                           "X",   "1e9999", "-32800", " ",   ".",   "36.5", ">>",  "-80"};
        const int kind = below(20);
        if (kind < 12) return std::to_string(below(25));
        if (kind < 15) return "x";
        if (kind < 17) return ">";
        if (kind < 18) return std::to_string(35 + below(47));
        return oneOf(junk);
    }
    std::string anyTechnique() {
        static const char* const techniques[] = {"g", "g",   "r", "r", ".", ".",
                                                 "h", "b12", "s", "v", "R", " "};
        return oneIn(2) ? "" : oneOf(techniques);
    }
    std::string anyMark() {
        static const char* const marks[] = {"r",  "r",  "r",   "r",   "r1",  "r1", "r2", "r2",
                                            "r3", "r3", "r15", "r16", "r16", ".",  ".",  "r0"};
        return oneOf(marks);
    }
    std::string anyNumber(int limit) {
        static const char* const junk[] = {"", "loud", "100.5", "125", "127", "40000", " 60 ", "-5"};
        return oneIn(6) ? oneOf(junk) : std::to_string(below(limit));
    }

    // Of 100 cells so many are filled, of 100 columns so many have a mark.
    void fillAtRandom(int columns, int cells, int marks, int arrows) {
        const int tracks = 1 + below(4);
        std::vector<Kind> kinds;
        for (int track = 0; track < tracks; ++track)
            kinds.push_back(oneIn(3) ? Kind::Percussion : Kind::Guitar);
        makeDocument(columns, kinds);
        for (int column = 0; column < columns; ++column) {
            for (int row = 0; row < tracks * StringsPerTrack; ++row)
                if (below(100) < cells) put(column, row, anyNote(), anyTechnique());
            if (below(100) < marks) document.setBarMark(column, anyMark());
            if (below(100) < arrows) put(column, below(tracks * StringsPerTrack), ">");
        }
        for (std::int16_t& tuning : document.TuningTable)
            if (oneIn(2)) tuning = static_cast<std::int16_t>(below(26));
        for (std::string& volume : document.TrackVolumes)
            volume = anyNumber(128);
        for (std::string& instrument : document.TrackInstruments)
            instrument = anyNumber(128);
        if (oneIn(10)) document.TrackVolumes.pop_back();
        if (oneIn(10)) document.TrackInstruments.pop_back();
        if (oneIn(10)) document.TuningTable.resize(document.TuningTable.size() - 4);
        document.PreventReverberations = static_cast<std::int16_t>(oneIn(3) ? 0 : 1);
    }

    void begin() {
        playFrom(oneIn(3) ? below(document.ColumnCapacity + 2) : 0);
        plain.emplace(document);
        plain->PlaybackPosition = state.PlaybackPosition;
    }

    void expectSameState() {
        ASSERT_EQ(state.PlaybackPosition, plain->PlaybackPosition);
        ASSERT_EQ(state.RepeatStartColumn, plain->RepeatStartColumn);
        ASSERT_EQ(state.RepeatsLeft, plain->RepeatsLeft);
        ASSERT_EQ(state.InRepeat, boolean16(plain->InRepeat));
    }

    // A tick that the plain player never finishes is left by the other after a beginning of the same
    // messages.
    void expectBeginning(const Messages& sent) {
        ASSERT_EQ(result, TickResult::Playing);
        ASSERT_LE(sent.size(), plain->messages.size());
        ASSERT_TRUE(std::equal(sent.begin(), sent.end(), plain->messages.begin()));
        for (int each = 0; each < 20; ++each)
            ASSERT_LE(tick().size(), plain->messages.size());
    }

    void compare() {
        ++tally.documents;
        for (int each = 0; each < MostTicks; ++each) {
            SCOPED_TRACE(::testing::Message() << "document " << tally.documents << ", tick " << each);
            const int before = state.PlaybackPosition;
            const Messages sent = tick();
            plain->messages.clear();
            try {
                plain->tick();
            } catch (const PlainPlayer::TooDeep&) {
                ++tally.endless;
                return expectBeginning(sent);
            }
            ASSERT_EQ(sent.size(), plain->messages.size());
            const auto [own, other] = std::ranges::mismatch(sent, plain->messages);
            ASSERT_TRUE(own == sent.end()) << "message " << own - sent.begin();
            ASSERT_EQ(result == TickResult::Ended, plain->ended);
            ASSERT_NO_FATAL_FAILURE(expectSameState());
            ++tally.ticks;
            tally.messages += static_cast<int>(sent.size());
            if (state.PlaybackPosition <= before) ++tally.jumps;
            if (plain->ended) {
                ++tally.ended;
                return;
            }
        }
    }

    void report() {
        RecordProperty("endless", tally.endless);
        RecordProperty("ended", tally.ended);
        RecordProperty("ticks", tally.ticks);
        RecordProperty("messages", tally.messages);
    }

    std::mt19937 random{GetParam()};
    std::optional<PlainPlayer> plain;
    Tally tally;
};

TEST_P(RandomPlayback, OfDocumentsOfSomeStavesAgreesWithThePlainPlayer) {
    for (int each = 0; each < Documents; ++each) {
        fillAtRandom(32 + below(65), 5 + below(30), oneIn(2) ? below(6) : 5 + below(25), below(40));
        begin();
        ASSERT_NO_FATAL_FAILURE(compare());
    }
    report();
    EXPECT_LT(tally.endless, Documents / 20);
    EXPECT_GT(tally.ended, Documents / 3);
    EXPECT_GT(tally.jumps, Documents);
}

// Closing marks and columns of no time side by side, so that jumps wait for each other within a tick.
TEST_P(RandomPlayback, OfDenseShortDocumentsAgreesWithThePlainPlayer) {
    for (int each = 0; each < 2 * Documents; ++each) {
        fillAtRandom(1 + below(10), 10, 20 + below(50), 20 + below(60));
        begin();
        ASSERT_NO_FATAL_FAILURE(compare());
    }
    report();
    EXPECT_LT(tally.endless, Documents / 4);
    EXPECT_GT(tally.endless, 0);
}

// States that no way through the document has led to: a jump may lead anywhere.
TEST_P(RandomPlayback, FromAnyStateAgreesWithThePlainPlayer) {
    for (int each = 0; each < 2 * Documents; ++each) {
        fillAtRandom(1 + below(12), 10, 20 + below(50), 20 + below(60));
        begin();
        plain->RepeatStartColumn = state.RepeatStartColumn = below(document.ColumnCapacity + 1);
        plain->RepeatsLeft = state.RepeatsLeft = static_cast<std::int16_t>(below(4));
        plain->InRepeat = oneIn(2);
        state.InRepeat = boolean16(plain->InRepeat);
        ASSERT_NO_FATAL_FAILURE(compare());
    }
    report();
    EXPECT_LT(tally.endless, Documents / 4);
}

INSTANTIATE_TEST_SUITE_P(FourSeeds, RandomPlayback, ::testing::Values(1u, 2u, 3u, 4u));

} // namespace
} // namespace tabrova::testing

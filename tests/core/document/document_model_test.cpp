// Random resizes, edits, new staves and new documents against plain maps.
#include "tests/core/document/document_helpers.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace tabrova::testing {
namespace {

using Cells = std::map<std::pair<int, int>, std::string>;

class PlainDocument {
  public:
    explicit PlainDocument(unsigned seed) : random_(seed) { resetToNewDocument(document_); }

    void step() {
        const int act = choose(0, 99);
        if (act < 80) {
            edit();
        } else if (act < 92) {
            resize(choose(0, 12) * 32, choose(0, 8) * 6);
        } else if (act < 96) {
            document_.TrackCount = static_cast<std::int16_t>(document_.RowCapacity / StringsPerTrack);
            document_.StaffCount = static_cast<std::int16_t>(columns_ / ColumnsPerStaff);
            ASSERT_TRUE(growByOneStaff(document_));
            cut(columns_ + 32, rows_);
        } else if (act < 99) {
            clearStaff();
        } else {
            resetToNewDocument(document_);
            cut(32, 6);
            notes_.clear();
            techniques_.clear();
            marks_.clear();
            tuning_.assign(6, StandardTuning);
        }
    }

    void check() const {
        ASSERT_EQ(document_.ColumnCapacity, columns_);
        ASSERT_EQ(document_.RowCapacity, rows_);
        ASSERT_EQ(document_.TuningTable, tuning_);
        for (int column = -1; column <= columns_; ++column) {
            ASSERT_EQ(document_.barMark(column), textAt(marks_, column, 0));
            for (int row = -1; row <= rows_; ++row) {
                ASSERT_EQ(document_.note(column, row), textAt(notes_, column, row));
                ASSERT_EQ(document_.technique(column, row), textAt(techniques_, column, row));
            }
        }
        for (int column = 0; column < ClipboardColumns; ++column)
            for (int row = 0; row < rows_; ++row)
                ASSERT_EQ(document_.pool.text(document_.ClipboardNotes.at(column, row)),
                          textAt(clipboard_, column, row));
    }

  private:
    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

    std::string anyText() {
        const int kind = choose(0, 3);
        if (kind == 0) return "";
        if (kind == 1) return std::to_string(choose(0, 29));
        return "text " + std::to_string(choose(0, 20'000));
    }

    static std::string textAt(const Cells& cells, int column, int row) {
        const auto found = cells.find({column, row});
        return found == cells.end() ? std::string() : found->second;
    }

    void edit() {
        for (int cell = 0; cell < 20; ++cell) {
            const int column = choose(-1, columns_), row = choose(-1, rows_);
            const std::string text = anyText();
            const bool inside = column >= 0 && column < columns_ && row >= 0 && row < rows_;
            document_.setNote(column, row, text);
            if (inside) notes_[{column, row}] = text;
            document_.setTechnique(column, row, text + "t");
            if (inside) techniques_[{column, row}] = text + "t";
            document_.setBarMark(column, text + "m");
            if (column >= 0 && column < columns_) marks_[{column, 0}] = text + "m";
            const int copied = choose(0, ClipboardColumns - 1);
            if (document_.ClipboardNotes.set(copied, row, document_.pool.intern(text)))
                clipboard_[{copied, row}] = text;
        }
        if (rows_ == 0) return;
        const auto row = static_cast<std::size_t>(choose(0, rows_ - 1));
        tuning_[row] = document_.TuningTable[row] = static_cast<std::int16_t>(choose(0, 26));
    }

    void resize(int columns, int rows) {
        ASSERT_TRUE(ResizeGrids(document_, columns, rows));
        cut(columns, rows);
    }

    void cut(int columns, int rows) {
        columns_ = columns;
        rows_ = rows;
        const auto outside = [&](const auto& cell) {
            return cell.first.first >= columns_ || cell.first.second >= rows_;
        };
        std::erase_if(notes_, outside);
        std::erase_if(techniques_, outside);
        std::erase_if(marks_, [&](const auto& mark) { return mark.first.first >= columns_; });
        std::erase_if(clipboard_, [&](const auto& cell) { return cell.first.second >= rows_; });
        tuning_.resize(static_cast<std::size_t>(rows_), 0);
    }

    void clearStaff() {
        if (columns_ == 0) return;
        document_.CurrentStaff = static_cast<std::int16_t>(choose(1, columns_ / ColumnsPerStaff));
        ClearStaffallall(document_);
        const int first = (document_.CurrentStaff - 1) * ColumnsPerStaff;
        const auto inStaff = [&](const auto& cell) {
            return cell.first.first >= first && cell.first.first < first + ColumnsPerStaff;
        };
        std::erase_if(notes_, inStaff);
        std::erase_if(techniques_, inStaff);
        std::erase_if(marks_, inStaff);
    }

    std::mt19937 random_;
    Document document_;
    int columns_ = 32;
    int rows_ = 6;
    Cells notes_, techniques_, marks_, clipboard_;
    std::vector<std::int16_t> tuning_ = std::vector<std::int16_t>(6, StandardTuning);
};

TEST(Document, RandomChangesAgreeWithPlainMaps) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        PlainDocument model(seed);
        for (int step = 0; step < 1500; ++step) {
            ASSERT_NO_FATAL_FAILURE(model.step());
            if (step % 10 != 0) continue;
            ASSERT_NO_FATAL_FAILURE(model.check()) << "seed " << seed << " step " << step;
        }
    }
}

} // namespace
} // namespace tabrova::testing

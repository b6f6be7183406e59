// Random structure edits, copies, pastes and note lengths through the real program on a document of several
// tracks, each checked against the slow plain model.
#include "tests/app/driver_session.h"
#include "tests/editing/plain_grid.h"

#include <random>

namespace tabrova::testing {
namespace {

constexpr int Steps = 1500;
constexpr int MostStavesHere = 6;

std::string textOf(const QJsonValue& cell) { return DriverSession::text(cell); }

void readCells(const QJsonObject& doc, const char* name, int columns, int rows, PlainGrid::Cells& cells) {
    cells.assign(static_cast<std::size_t>(columns), PlainGrid::Marks(static_cast<std::size_t>(rows)));
    for (const QJsonValue& cell : doc[name].toArray())
        cells[static_cast<std::size_t>(cell.toArray()[0].toInt())]
             [static_cast<std::size_t>(cell.toArray()[1].toInt())] = textOf(cell.toArray()[2]);
}

void readMarks(const QJsonObject& doc, const char* name, std::size_t columns, PlainGrid::Marks& marks) {
    marks.assign(columns, "");
    for (const QJsonValue& mark : doc[name].toArray())
        marks[static_cast<std::size_t>(mark.toArray()[0].toInt())] = textOf(mark.toArray()[1]);
}

// The size of the clipboard's arrays is not told: the model's own is kept.
PlainGrid modelOf(const QJsonObject& doc) {
    PlainGrid model;
    model.resizeGrids(doc["ColumnCapacity"].toInt(), doc["RowCapacity"].toInt());
    model.staffCount = doc["StaffCount"].toInt();
    model.trackCount = doc["TrackCount"].toInt();
    model.staff = doc["CurrentStaff"].toInt();
    model.columnInStaff = doc["ColumnInStaff"].toInt();
    model.track = doc["CurrentTrack"].toInt();
    model.clipboardStart = doc["ClipboardStart"].toInt();
    model.clipboardLength = doc["ClipboardLength"].toInt();
    model.tuning.clear();
    for (const QJsonValue& tuning : doc["TuningTable"].toArray())
        model.tuning.push_back(tuning.toInt());
    readCells(doc, "NoteGrid", model.columnCapacity, model.rowCapacity, model.notes);
    readCells(doc, "TechniqueGrid", model.columnCapacity, model.rowCapacity, model.techniques);
    readMarks(doc, "BarMarkRow", model.marks.size(), model.marks);
    const int clipboardColumns = static_cast<int>(model.clipboardNotes.size());
    readCells(doc, "ClipboardNotes", clipboardColumns, model.rowCapacity, model.clipboardNotes);
    readCells(doc, "ClipboardTechniques", clipboardColumns, model.rowCapacity, model.clipboardTechniques);
    readMarks(doc, "ClipboardBarMarks", model.clipboardMarks.size(), model.clipboardMarks);
    return model;
}

class StructureWalk {
  public:
    StructureWalk() : drive_({TABROVA_SOURCE_DIR "/examples/twelve-bar-blues.tr3"}) {}

    void run() {
        for (int step = 0; step < Steps && !::testing::Test::HasFailure(); ++step)
            runStep();
    }

  private:
    int choose(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

    void runStep() {
        if (choose(0, 2) == 0) return moveCursor();
        PlainGrid model = modelOf(drive_.doc());
        const int staff = model.staff;
        const QString command = change(model);
        drive_.ok(command);
        const QJsonObject doc = drive_.doc();
        const PlainGrid after = modelOf(doc);
        EXPECT_TRUE(after == model) << command.toStdString() << " in staff " << staff << ": staff "
                                    << after.staff << " of " << after.staffCount << " instead of "
                                    << model.staff << " of " << model.staffCount << ", column "
                                    << after.columnInStaff << " instead of " << model.columnInStaff;
        // The marker shows the cursor.
        EXPECT_EQ(drive_.page()["nCursor"].toArray()[1].toInt(),
                  100 * (after.staff - doc["TopStaff"].toInt() - 1) + 10 * doc["CurrentString"].toInt() + 25)
            << command.toStdString();
    }

    void moveCursor() {
        if (choose(0, 3) == 0) drive_.ok(QString("set VScroll1 %1").arg(choose(1, 8)));
        drive_.ok(QString("click picDocument %1 %2").arg(choose(22, 940)).arg(choose(25, 460)));
        if (choose(0, 1) == 0) drive_.ok(QString("key %1").arg(choose(48, 57)));
        if (choose(0, 3) == 0) drive_.ok("key 86");
        if (choose(0, 3) == 0) drive_.ok("key 13");
    }

    QString change(PlainGrid& model) {
        if (model.staffCount > MostStavesHere) return deleteStaff(model);
        const int kind = choose(0, 9);
        if (kind == 0) return clear(model);
        if (kind == 1) return newStaff(model);
        if (kind == 2) return deleteStaff(model);
        if (kind < 6) return column(model);
        if (kind == 6) return copy(model);
        return kind == 7 ? paste(model) : length(model);
    }

    QString clear(PlainGrid& model) {
        static const char* const names[] = {"ClearStaffallall",       "clearstaffallnorepeats",
                                            "clearstaffallnotes",     "clearstaffalltech",
                                            "clearstaffcurrentall",   "clearstaffcurrentnorepeats",
                                            "clearstaffcurrentnotes", "clearstaffcurrenttech"};
        const int row = choose(0, 7);
        const int what = row % 4;
        model.clear(row < 4, what != 3, what != 2, what == 0);
        return QString("do ") + names[row];
    }

    QString newStaff(PlainGrid& model) {
        const int kind = choose(0, 2);
        if (kind == 0) model.newStaffBeforeCurrent();
        if (kind == 1) model.newStaffAfterCurrent();
        if (kind == 2) model.appendStaff();
        static const char* const names[] = {"mnuEditNewBarBeforeCurrent", "mnuEditNewBarAfterCurrentBar",
                                            "mnuEditnewBarAtEndofDocument"};
        return QString("do ") + names[kind];
    }

    QString deleteStaff(PlainGrid& model) {
        if (model.staffCount == 1) {
            const bool clearIt = choose(0, 1) == 0;
            drive_.ok(clearIt ? "answer yes" : "answer no");
            if (clearIt) model.clear(true, true, true, true);
        } else {
            model.deleteStaff();
            model.bringCursorBack();
        }
        return "do mnuDeleteBar";
    }

    QString column(PlainGrid& model) {
        const bool all = choose(0, 1) == 0;
        if (choose(0, 1) == 0) {
            model.insertColumn(all);
            if (all) model.removeBarMark();
            return all ? "do mnuEditInsertNoteOnAllTracks" : "do mnuEditInsertNoteOnCurrentTrack";
        }
        model.removeColumn(all);
        return all ? "do mnuEditRemoveNoteonAllTracks" : "do mnuEditRemoveNoteonCurrentTrack";
    }

    QString copy(PlainGrid& model) {
        const int index = choose(-4, 7);
        if (index < 0) {
            model.copyStaff();
            return "do mnuCopyStaff";
        }
        model.copyColumns(index + 1);
        return QString("do mnuCopyNextBeat(%1)").arg(index);
    }

    QString paste(PlainGrid& model) {
        const bool all = choose(0, 1) == 0;
        model.paste(all);
        return all ? "do mnuEditPaste(0)" : "do mnuEditPaste(1)";
    }

    QString length(PlainGrid& model) {
        static const std::pair<const char*, int> lengths[] = {{"wholenote", 16}, {"halfnote", 8},
                                                              {"triplet", 3},    {"quarternote", 4},
                                                              {"eighthnote", 2}, {"sixteenthnote", 1}};
        const auto& [word, columns] = lengths[choose(0, 5)];
        model.setNoteLength(columns);
        return QString("click Toolbar1(%1)").arg(word);
    }

    DriverSession drive_;
    std::mt19937 random_{20261121};
};

TEST(StructureWalk, TheGridsAreThoseOfThePlainModel) { StructureWalk().run(); }

} // namespace
} // namespace tabrova::testing

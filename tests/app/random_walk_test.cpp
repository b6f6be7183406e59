// Twenty thousand random key and mouse commands through the driver, checked against the plain model.
#include "tests/app/driver_session.h"
#include "tests/app/plain_model.h"

#include <random>
#include <sstream>

namespace tabrova::testing {
namespace {

constexpr int Commands = 20000;
constexpr int CommandsBetweenChecks = 250;

class RandomWalk {
  public:
    explicit RandomWalk(unsigned seed) : random_(seed) {
        model_.columnWidth = drive_.doc()["ColumnWidth"].toInt();
        EXPECT_EQ(drive_.doc()["VisibleStaves"].toInt(), PlainModel::Staves);
    }

    void run() {
        for (int sinceCheck = 0; sent_ < Commands; ++sinceCheck) {
            step();
            if (sinceCheck % CommandsBetweenChecks != 0) continue;
            collect();
            if (check(); ::testing::Test::HasFailure()) return;
        }
        collect();
        check();
    }

  private:
    int choose(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }

    void send(const QString& command) {
        drive_.send(command);
        ++sent_;
        ++open_;
        last_ = command;
    }

    void step() {
        const int kind = choose(0, 99);
        if (kind < 45) return move();
        if (kind < 85) return key();
        if (kind < 92) return click();
        if (kind < 94) return scroll();
        if (kind < 96) return mode();
        return kind < 98 ? repeat() : bend();
    }

    void move() {
        sendKey(std::array{39, 39, 39, 37, 38, 40, 40}[static_cast<std::size_t>(choose(0, 6))], 0);
    }

    void key() {
        static constexpr int codes[] = {48,  49,  50,  51,  55,  57,  'X', 'J', 46,  8,   13,
                                        32,  'U', 'H', 'S', 'V', 'W', 'D', 'G', 'M', 'F', 'T',
                                        'L', 'O', 'R', 'Z', 'K', 81,  'A', 27,  112};
        const int code = codes[choose(0, static_cast<int>(std::size(codes)) - 1)];
        const int shift = choose(0, 7);
        if (code == 32 && (shift & 1)) return; // opens a panel
        sendKey(code, shift);
    }

    void sendKey(int code, int shift) {
        send(QString("key %1 %2").arg(code).arg(shift));
        model_.key(code, shift);
    }

    void click() {
        const int x = choose(0, 983);
        const int y = choose(0, 471);
        send(QString("click picDocument %1 %2").arg(x).arg(y));
        model_.click(x, y);
    }

    void scroll() {
        const int value = choose(1, 12);
        send(QString("set VScroll1 %1").arg(value));
        model_.scrollTo(value);
    }

    void mode() {
        if (choose(0, 1) == 0) {
            send("do mnuIntelligent");
            model_.intelligent = !model_.intelligent;
            return;
        }
        model_.powerChord = choose(0, 1) == 0;
        send(model_.powerChord ? "do mnuCCP" : "do mnuStandard");
    }

    void repeat() {
        const int times = choose(1, 15);
        send("press picDocument Shift+Space");
        send(QString("set RepeatScroller %1").arg(times));
        send("press RepeatScroller Return");
        model_.closedRepeat(times);
    }

    void bend() {
        const int index = choose(0, 11);
        send("press picDocument B");
        send(index < 6 ? "press picBend Up" : "press picBend Down");
        for (; bendColumn_ < index % 6; ++bendColumn_)
            send("press picBend Right");
        for (; bendColumn_ > index % 6; --bendColumn_)
            send("press picBend Left");
        send("press picBend Return");
        model_.bend(index);
    }

    void collect() {
        for (; open_ > 0; --open_) {
            const QJsonObject answer = drive_.receive();
            EXPECT_TRUE(answer["ok"].toBool())
                << DriverSession::text(answer["error"]) << " near command " << sent_;
        }
    }

    void check() {
        const QJsonObject doc = drive_.doc();
        EXPECT_EQ(doc["CurrentStaff"].toInt(), model_.staff);
        EXPECT_EQ(doc["ColumnInStaff"].toInt(), model_.column);
        EXPECT_EQ(doc["CurrentString"].toInt(), model_.string);
        EXPECT_EQ(doc["TopStaff"].toInt(), model_.topStaff);
        EXPECT_EQ(doc["StaffCount"].toInt(), model_.staffCount);
        EXPECT_EQ(doc["ColumnCapacity"].toInt(), model_.staffCount * 32);
        EXPECT_EQ(cells(doc, "NoteGrid"), cells(model_.notes));
        EXPECT_EQ(cells(doc, "TechniqueGrid"), cells(model_.techniques));
        EXPECT_EQ(marks(doc), marks(model_.marks));
        const QJsonObject page = drive_.page();
        EXPECT_EQ(page["nCursor"].toArray(),
                  (QJsonArray{model_.columnWidth * model_.column + 22,
                              100 * (model_.staff - model_.topStaff - 1) + 10 * model_.string + 25, 13, 10}));
        EXPECT_EQ(page["VScroll1"].toObject()["value"].toInt(), model_.topStaff + 1);
        if (::testing::Test::HasFailure())
            ADD_FAILURE() << "after command " << sent_ << ": " << last_.toStdString();
    }

    static std::string cells(const QJsonObject& doc, const char* grid) {
        std::ostringstream text;
        for (const QJsonValue& cell : doc[grid].toArray())
            text << cell.toArray()[0].toInt() << ',' << cell.toArray()[1].toInt() << '='
                 << DriverSession::text(cell.toArray()[2]) << '\n';
        return text.str();
    }
    static std::string cells(const std::map<PlainModel::Cell, std::string>& cells) {
        std::ostringstream text;
        for (const auto& [place, cell] : cells)
            text << place.first << ',' << place.second << '=' << cell << '\n';
        return text.str();
    }
    static std::string marks(const QJsonObject& doc) {
        std::ostringstream text;
        for (const QJsonValue& cell : doc["BarMarkRow"].toArray())
            text << cell.toArray()[0].toInt() << '=' << DriverSession::text(cell.toArray()[1]) << '\n';
        return text.str();
    }
    static std::string marks(const std::map<int, std::string>& marks) {
        std::ostringstream text;
        for (const auto& [column, mark] : marks)
            text << column << '=' << mark << '\n';
        return text.str();
    }

    DriverSession drive_;
    PlainModel model_;
    std::mt19937 random_;
    int sent_ = 0;
    int open_ = 0;
    int bendColumn_ = 0;
    QString last_;
};

TEST(RandomWalk, TheDocumentIsThatOfThePlainModel) { RandomWalk(20261121).run(); }

} // namespace
} // namespace tabrova::testing

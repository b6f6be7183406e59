// The metronome's beats and places against those that were looked at.
#include "tests/tools/looks.h"
#include "tests/workbench/tool_bench.h"
#include "tools/metronome/beat_row.h"
#include "tools/metronome/frmMetronome.h"

namespace tabrova::testing {
namespace {

constexpr char Tool[] = "metronome";

class MetronomeLooks : public ToolBench {
  protected:
    MetronomeLooks() {
        QPalette theme(QColor(0xef, 0xef, 0xef));
        theme.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
        QApplication::setPalette(theme);
    }
    ~MetronomeLooks() override { QApplication::setPalette(before_); }

  private:
    QPalette before_ = QApplication::palette();
};

TEST_F(MetronomeLooks, TheBeatsAtRestAndSounding) {
    BeatRow row(nullptr);
    row.resize(row.sizeHint());
    QList<QRect> numbers;
    for (int beat = 0; beat < 4; ++beat)
        numbers.append(QRect(beat * 94 + 24, 30, 36, 46));
    row.showBeat(-1, 4);
    expectPicture(pictured(row, numbers), Tool, "beats_at_rest");
    row.showBeat(1, 3);
    expectPicture(pictured(row, numbers), Tool, "second_of_three_beats");
}

TEST_F(MetronomeLooks, TheNumbersOfTheBeats) {
    BeatRow row(nullptr);
    row.resize(row.sizeHint());
    row.showBeat(0, 3);
    const QImage image = pictured(row, {});
    const auto inked = [&](int beat) {
        int count = 0;
        for (int y = 60; y < 150; ++y)
            for (int x = 2 * (beat * 94 + 24); x < 2 * (beat * 94 + 60); ++x)
                count += qGray(image.pixel(x, y)) < 90;
        return count;
    };
    EXPECT_GT(inked(1), 300);
    EXPECT_GT(inked(2), inked(1));
    EXPECT_EQ(inked(0), 0); // light on the filled disc
    EXPECT_EQ(inked(3), 0); // faint
}

TEST_F(MetronomeLooks, ItsControlsInTheirPlaces) {
    frmMetronome form(context, nullptr);
    form.Form_Load();
    expectLayout(form, Tool, "metronome_layout");
}

} // namespace
} // namespace tabrova::testing

// The tuning manager's button among a track's properties.
#include "organisers/track_properties/frmTrackProperties.h"
#include "tests/workbench/tool_bench.h"

#include <QPushButton>
#include <QTest>

namespace tabrova {
namespace {

class TuningButton : public testing::ToolBench {
  protected:
    QPushButton& openAndFind() {
        form.Form_Load();
        form.show();
        return *form.findChild<QPushButton*>("Command1");
    }

    frmTrackProperties form{context, nullptr};
};

TEST_F(TuningButton, IsDisabledWhileThereIsNoTuningManager) {
    tools.missing = {"frmTuningManager"};
    EXPECT_FALSE(openAndFind().isEnabled());
}

TEST_F(TuningButton, OpensTheTuningManagerOnAGuitarTrack) {
    QPushButton& button = openAndFind();
    ASSERT_TRUE(button.isEnabled());
    log.clear();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(log, testing::Log{"open frmTuningManager"});
}

TEST_F(TuningButton, IsDisabledOnAPercussionTrack) {
    document().GuitarTrackFlags[0] = False16;
    EXPECT_FALSE(openAndFind().isEnabled());
}

} // namespace
} // namespace tabrova

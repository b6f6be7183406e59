// The tuning manager's button among a track's properties.
#include "shell/properties/frmTrackProperties.h"
#include "tests/shell/main_window.h"

#include <QPushButton>
#include <QTest>

namespace tabrova {
namespace {

class TuningButton : public testing::MainWindowTest {
  protected:
    QPushButton& openAndFind() {
        delete form("frmTrackProperties");
        trigger("mnuTrackProps");
        return *control<QPushButton>(*form("frmTrackProperties"), "Command1");
    }
};

TEST_F(TuningButton, IsDisabledWhileThereIsNoTuningManager) {
    load();
    window->menu().setEnabled("mnuTuningManager", false);
    EXPECT_FALSE(openAndFind().isEnabled());
}

TEST_F(TuningButton, OpensTheTuningManagerOnAGuitarTrack) {
    load();
    int opened = 0;
    window->menu().connectItem("mnuTuningManager", [&opened] { ++opened; });
    QPushButton& button = openAndFind();
    ASSERT_TRUE(button.isEnabled());
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(opened, 1);
}

TEST_F(TuningButton, IsDisabledOnAPercussionTrack) {
    load();
    window->menu().connectItem("mnuTuningManager", [] {});
    window->document().GuitarTrackFlags[0] = False16;
    EXPECT_FALSE(openAndFind().isEnabled());
}

} // namespace
} // namespace tabrova

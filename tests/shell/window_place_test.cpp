// Where the main window stands: at first, at least, and in the next run.
#include "shell/window_place.h"

#include "tests/shell/main_window.h"

#include <QScreen>

namespace tabrova {
namespace {

class Places : public testing::MainWindowTest {
  protected:
    void start() {
        place.reset();
        window = std::make_unique<frmMain>(services);
        place = std::make_unique<WindowPlace>(*window, services.settings);
        place->restore();
        window->show();
        window->Form_Load({}, frmMain::Splash::Never);
        place->restoreViews();
        window->ending = [this] { place->remember(); };
        QApplication::processEvents();
    }
    ~Places() override { place.reset(); }
    QRect room() { return window->screen()->availableGeometry(); }

    std::unique_ptr<WindowPlace> place;
};

TEST_F(Places, TheFirstWindowLiesInsideTheScreen) {
    start();
    EXPECT_TRUE(room().contains(window->geometry())) << window->height() << " of " << room().height();
    EXPECT_GE(window->clientArea()->width(), 784);
}

TEST_F(Places, TheLeastSizeShowsTheScrollBar) {
    start();
    EXPECT_EQ(window->minimumWidth(), 784);
    EXPECT_LE(window->minimumHeight(), room().height());
    EXPECT_GE(window->minimumHeight(), 300);
}

// The screen of these tests is 800 wide.
TEST_F(Places, AZoomForWhichTheScreenIsTooSmallIsNotOffered) {
    services.settings.SaveSetting("Options", "Zoom", "150");
    start();
    ASSERT_LT(room().width(), 980 + 8);
    EXPECT_EQ(window->commands().views.zoom(), 100);
    EXPECT_TRUE(window->menu().isEnabled("mnuZoom(0)"));
    for (const char* item : {"mnuZoom(1)", "mnuZoom(2)", "mnuZoom(3)"})
        EXPECT_FALSE(window->menu().isEnabled(item)) << item;
    trigger("mnuZoomIn");
    EXPECT_EQ(window->commands().views.zoom(), 100);
}

TEST_F(Places, SizePlaceAndViewsComeBack) {
    start();
    window->setGeometry(30, 40, 790, 480);
    window->menu().action("mnuVirtualFretboard")->trigger();
    window->menu().action("mnuViewNotation")->trigger();
    QApplication::processEvents();
    const QRect before = window->geometry();
    window->endInOrder();
    start();
    EXPECT_EQ(window->geometry(), before);
    EXPECT_TRUE(window->menu().isChecked("mnuVirtualFretboard"));
    EXPECT_TRUE(window->commands().views.layout().fretboardShown);
    EXPECT_FALSE(window->menu().isChecked("mnuViewNotation"));
    EXPECT_FALSE(window->commands().views.layout().stripShown);
}

TEST_F(Places, WhatIsNoPlaceIsPassedOver) {
    services.settings.SaveSetting("Window", "Geometry", "!! no place !!");
    services.settings.SaveSetting("Window", "Notation", "maybe");
    start();
    EXPECT_TRUE(room().contains(window->geometry()));
    EXPECT_FALSE(window->menu().isChecked("mnuViewNotation")) << "anything but 1 is off";
}

TEST(FirstZoom, FollowsTheScreen) {
    for (const auto& [width, height, zoom] : {std::tuple{800, 600, 100},
                                              {1366, 768, 100},
                                              {1920, 1080, 100},
                                              {2560, 1440, 150},
                                              {2400, 1350, 150},
                                              {2000, 1125, 125},
                                              {2560, 1000, 100},
                                              {3840, 2160, 200}})
        EXPECT_EQ(zoomForScreen({width, height}), zoom) << width;
}

} // namespace
} // namespace tabrova

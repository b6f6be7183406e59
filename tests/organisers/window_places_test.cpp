// How the organisers' windows come up and take another size: every part lies inside what it stands on, none
// on another, and what has the most to show grows.
#include "organisers/band_manager/frmBandManager.h"
#include "organisers/lessons/frmLessons.h"
#include "organisers/websites/frmWebsites.h"
#include "tests/workbench/tool_bench.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace tabrova::testing {
namespace {

class OrganiserPlaces : public ToolBench {
  protected:
    template <class Window>
    void open() {
        window = std::make_unique<Window>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
    }
    QWidget& at(const QString& name) { return *window->findChild<QWidget*>(name); }
    void resize(int width, int height) {
        window->resize(width, height);
        QApplication::processEvents();
    }
    // Of what shows on the widget, and on that.
    void expectOrder(QWidget& on) {
        QList<QWidget*> parts;
        for (QWidget* part : on.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (part->isVisible() && !part->isWindow()) parts.append(part);
        for (QWidget* part : parts) {
            EXPECT_TRUE(on.rect().contains(part->geometry())) << part->objectName().toStdString();
            for (QWidget* other : parts) {
                const bool overlap = part < other && part->geometry().intersects(other->geometry());
                EXPECT_FALSE(overlap)
                    << part->objectName().toStdString() << " and " << other->objectName().toStdString();
            }
            if (!part->inherits("QAbstractScrollArea") && !part->inherits("QTabWidget")) expectOrder(*part);
        }
    }

    std::unique_ptr<ToolWindow> window;
};

TEST_F(OrganiserPlaces, TheBandManager) {
    open<frmBandManager>();
    EXPECT_EQ(window->size(), QSize(600, 460));
    const QStringList growing = {"tbMembers", "File1", "txtBandDetails"};
    for (int option = 0; option < 3; ++option) {
        window->findChild<QAbstractButton*>(QString("mnuOption(%1)").arg(option))->click();
        resize(600, 460);
        expectOrder(*window);
        if (option == 0) expectOrder(*at("txtMemberName(0)").parentWidget());
        const QSize before = at(growing[option]).size();
        resize(700, 560);
        expectOrder(*window);
        EXPECT_EQ(at(growing[option]).size(), before + QSize(100, 100));
    }
}

TEST_F(OrganiserPlaces, TheWebsiteManager) {
    open<frmWebsites>();
    EXPECT_EQ(window->size(), QSize(560, 500));
    expectOrder(*window);
    const QSize before = at("sitesList").size();
    const int boxBefore = at("siteURL").width();
    resize(660, 600);
    expectOrder(*window);
    EXPECT_EQ(at("sitesList").size(), before + QSize(100, 100));
    EXPECT_EQ(at("siteURL").width(), boxBefore + 100);
}

TEST_F(OrganiserPlaces, ADescriptionHasRoomForFourLines) {
    open<frmWebsites>();
    auto& label = dynamic_cast<QLabel&>(at("lblDesc"));
    const QScrollArea* area = nullptr;
    for (const QScrollArea* each : window->findChildren<QScrollArea*>())
        if (each->widget() == &label) area = each;
    ASSERT_NE(area, nullptr);
    const auto rest = [&](const char* text) {
        label.setText(text);
        QApplication::processEvents();
        return area->verticalScrollBar()->maximum();
    };
    EXPECT_EQ(rest("1\n2\n3\n4"), 0);
    EXPECT_GT(rest("1\n2\n3\n4\n5"), 0);
}

TEST_F(OrganiserPlaces, TheLessons) {
    open<frmLessons>();
    EXPECT_EQ(window->size(), QSize(900, 620));
    expectOrder(at("Picture1"));
    // A panel as large as its parts need, over the lesson.
    EXPECT_GE(at("Picture1").width(), at("Picture1").minimumSizeHint().width());
    EXPECT_TRUE(window->rect().contains(at("Label8").geometry()));
    EXPECT_FALSE(at("Label8").geometry().intersects(at("imgLogo").geometry()));
    EXPECT_FALSE(at("Label8").geometry().intersects(at("txtLesson").geometry()));
    EXPECT_FALSE(at("txtLesson").geometry().intersects(at("StatusBar1").geometry()));
}

} // namespace
} // namespace tabrova::testing

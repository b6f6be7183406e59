// The File menu's lists of documents, and documents dropped on the window.
#include "platform/paths.h"
#include "shell/dropped_document.h"
#include "tests/shell/main_window.h"
#include "tests/workbench/saved_document.h"

#include <QDropEvent>
#include <QMimeData>

#include <fstream>

namespace tabrova {
namespace {

class FileMenu : public testing::MainWindowTest {
  protected:
    QString saved(const char* name) { return testing::savedDocument(folder() / name); }
    QAction* recent(int place) {
        return window->menu().action("mnuRecentDocument(" + QString::number(place) + ")");
    }
    bool offered(const QMimeData& data) {
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(window.get(), &enter);
        return enter.isAccepted();
    }
    void drop(const QMimeData& data) {
        offered(data);
        QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &event);
    }
    std::string title() { return window->document().Title; }
};

TEST_F(FileMenu, AnEmptyListIsDisabled) {
    load();
    EXPECT_FALSE(window->menu().isEnabled("mnuRecent"));
    EXPECT_FALSE(window->menu().isEnabled("mnuExamples"));
}

TEST_F(FileMenu, RecentDocumentsStandThereByTheirNames) {
    load();
    for (const char* name : {"first.tr3", "a&b.tr3"}) {
        files.queueAnswer(saved(name));
        boxes.queueAnswer(BoxAnswer::No);
        trigger("mnuFileOpen");
    }
    EXPECT_TRUE(window->menu().isEnabled("mnuRecent"));
    EXPECT_EQ(recent(0)->text(), "&1  a&&b.tr3");
    EXPECT_EQ(recent(1)->text(), "&2  first.tr3");
    EXPECT_TRUE(recent(1)->isVisible());
    EXPECT_FALSE(recent(2)->isVisible());
    EXPECT_EQ(recent(1)->toolTip(), textOf(folder() / "first.tr3"));
    boxes.queueAnswer(BoxAnswer::No);
    recent(1)->trigger();
    EXPECT_EQ(title(), "first");
    EXPECT_EQ(recent(0)->text(), "&1  first.tr3");
    trigger("mnuRecentClear");
    EXPECT_FALSE(window->menu().isEnabled("mnuRecent"));
}

TEST_F(FileMenu, TheNextRunShowsThemAtOnce) {
    services.settings.SaveSetting("Recent", "Document0", "/tabs/one.tr3");
    load();
    EXPECT_EQ(recent(0)->text(), "&1  one.tr3");
    EXPECT_TRUE(window->menu().isEnabled("mnuRecent"));
}

TEST_F(FileMenu, ExamplesAreOneClickAway) {
    saved("examples/iron-kettle.tr3");
    saved("examples/amazing-grace.tr3");
    std::ofstream(folder() / "examples" / "notes.txt") << "no document";
    load();
    EXPECT_TRUE(window->menu().isEnabled("mnuExamples"));
    EXPECT_EQ(window->menu().action("mnuExample(0)")->text(), "Amazing Grace");
    EXPECT_EQ(window->menu().action("mnuExample(1)")->text(), "Iron Kettle");
    EXPECT_EQ(window->menu().action("mnuExample(2)"), nullptr);
    boxes.queueAnswer(BoxAnswer::No);
    trigger("mnuExample(1)");
    EXPECT_EQ(title(), "iron-kettle");
}

TEST_F(FileMenu, ADroppedDocumentIsOpenedAfterTheQuestion) {
    load();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(saved("dropped one.tr3"))});
    EXPECT_TRUE(offered(data));
    boxes.queueAnswer(BoxAnswer::Cancel);
    drop(data);
    EXPECT_EQ(boxes.take().size(), 0) << "whoever dropped it goes on first";
    QApplication::processEvents();
    EXPECT_EQ(boxes.take().size(), 1);
    EXPECT_EQ(title(), "Untitled");
    boxes.queueAnswer(BoxAnswer::No);
    drop(data);
    QApplication::processEvents();
    EXPECT_EQ(boxes.take().size(), 1);
    EXPECT_EQ(title(), "dropped one");
}

TEST(DroppedDocument, MayHaveANameOfAnyBytes) {
    for (const auto& [url, name] : {std::pair{"file:///tabs/caf%E9.tr3", "/tabs/caf\xE9.tr3"},
                                    {"file:///tabs/caf%C3%A9.tr3", "/tabs/caf\xC3\xA9.tr3"},
                                    {"file:///tabs/100%25%20%23a%3F.tr3", "/tabs/100% #a?.tr3"},
                                    {"file:///tabs/a+b;c.TR3", "/tabs/a+b;c.TR3"}}) {
        QMimeData data;
        data.setData("text/uri-list", QByteArray(url) + "\r\n");
        EXPECT_EQ(pathOf(droppedDocument(data)).native(), name) << url;
    }
}

TEST_F(FileMenu, AnythingElseIsNotTaken) {
    load();
    const QUrl one = QUrl::fromLocalFile(saved("one.tr3")), two = QUrl::fromLocalFile(saved("two.TR3"));
    const QList<QList<QUrl>> refused = {
        {}, {one, two}, {QUrl("https://example.invalid/a.tr3")}, {QUrl::fromLocalFile("/tmp/picture.png")}};
    for (const QList<QUrl>& urls : refused) {
        QMimeData data;
        data.setUrls(urls);
        EXPECT_FALSE(offered(data));
        drop(data);
    }
    QMimeData text;
    text.setText("/tmp/one.tr3");
    EXPECT_FALSE(offered(text));
    QApplication::processEvents();
    EXPECT_EQ(boxes.take().size(), 0);
    QMimeData capital;
    capital.setUrls({two});
    EXPECT_TRUE(offered(capital));
    window->ToggleMenus(false);
    EXPECT_FALSE(offered(capital)) << "while music plays";
    drop(capital);
    QApplication::processEvents();
    EXPECT_EQ(boxes.take().size(), 0);
}

} // namespace
} // namespace tabrova

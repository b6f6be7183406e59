// The table of windows: one rule for loading, showing, language and unloading, tried on windows of the test's
// own.
#include "shell/tool_windows.h"

#include "tests/workbench/tool_bench.h"

#include <QTest>
#include <QWindow>

namespace tabrova::testing {
namespace {

Log* steps = nullptr;

// Writes down what happens to it.
class WrittenWindow : public ToolWindow {
  public:
    WrittenWindow(const char* name, const ToolContext& context, QWidget* parent)
        : ToolWindow(name, context, parent) {
        write("made");
    }
    ~WrittenWindow() override { write("deleted"); }
    void Form_Load() override {
        write("load");
        ToolWindow::Form_Load();
    }
    void Form_Unload() override { write("unload"); }
    void Form_Opened(const ToolOpener::Opening& opening) override {
        write("opened at " + std::to_string(opening.tab));
    }

  private:
    void write(const std::string& what) { steps->push_back(objectName().toStdString() + " " + what); }
};

class frmLent : public WrittenWindow {
  public:
    frmLent(const ToolContext& context, QWidget* parent) : WrittenWindow("frmLent", context, parent) {}
};

class frmKept : public WrittenWindow {
  public:
    frmKept(const ToolContext& context, QWidget* parent) : WrittenWindow("frmKept", context, parent) {}
};

template <class Window>
ToolWindow* make(const ToolContext& context, QWidget* parent) {
    return new Window(context, parent);
}

constexpr ToolRow Table[] = {{"frmLent", "mnuLent", make<frmLent>},
                             {"frmKept", "", make<frmKept>, Keeping::UntilTheEnd}};

class WindowTable : public ToolBench {
  protected:
    WindowTable() {
        steps = &written;
        main.show();
    }
    Log take() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return std::exchange(written, {});
    }
    QWidget& shown(const char* form) { return *windows.window(form); }

    Log written;
    QWidget main;
    ToolWindows windows{context, main, Table};
};

TEST_F(WindowTable, KnowsItsWindowsAndNoOthers) {
    EXPECT_TRUE(windows.has("frmLent"));
    EXPECT_TRUE(windows.has("frmKept"));
    EXPECT_FALSE(windows.has("frmOther"));
    EXPECT_FALSE(windows.isLoaded("frmLent"));
    EXPECT_EQ(windows.window("frmLent"), nullptr);
    windows.load("frmOther");
    windows.open("frmOther");
    windows.unload("frmOther");
    EXPECT_TRUE(windows.loadedWindows().isEmpty());
    EXPECT_EQ(take(), Log{});
}

TEST_F(WindowTable, AWindowIsLoadedOnceHoweverOftenItIsAskedFor) {
    windows.load("frmLent");
    EXPECT_TRUE(windows.isLoaded("frmLent"));
    EXPECT_FALSE(shown("frmLent").isVisible());
    EXPECT_EQ(shown("frmLent").parentWidget(), &main);
    windows.load("frmLent");
    windows.open("frmLent");
    windows.open("frmLent", {nullptr, 3});
    EXPECT_EQ(take(), (Log{"frmLent made", "frmLent load", "frmLent opened at 0", "frmLent opened at 3"}));
    EXPECT_TRUE(shown("frmLent").isVisible());
}

TEST_F(WindowTable, ClosingUnloadsAWindowThatIsNotKept) {
    for (const bool byKey : {true, false}) {
        windows.open("frmLent");
        take();
        if (byKey) QTest::keyClick(&shown("frmLent"), Qt::Key_Escape);
        if (!byKey) shown("frmLent").close();
        EXPECT_FALSE(windows.isLoaded("frmLent"));
        EXPECT_EQ(take(), (Log{"frmLent unload", "frmLent deleted"}));
    }
}

TEST_F(WindowTable, ClosingHidesAWindowThatIsKept) {
    windows.open("frmKept");
    ToolWindow* first = windows.window("frmKept");
    first->close();
    EXPECT_FALSE(first->isVisible());
    EXPECT_TRUE(windows.isLoaded("frmKept"));
    windows.open("frmKept");
    EXPECT_EQ(windows.window("frmKept"), first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(take(), (Log{"frmKept made", "frmKept load", "frmKept opened at 0", "frmKept opened at 0"}));
}

TEST_F(WindowTable, AnUnloadedWindowIsHiddenAtOnceAndDeletedLater) {
    windows.open("frmKept");
    const QPointer<ToolWindow> window = windows.window("frmKept");
    written.clear();
    windows.unload("frmKept");
    windows.unload("frmKept");
    EXPECT_EQ(written, Log{"frmKept unload"});
    ASSERT_TRUE(window);
    EXPECT_FALSE(window->isVisible());
    windows.load("frmKept"); // and a new one can come before it has gone
    EXPECT_NE(windows.window("frmKept"), window);
    EXPECT_EQ(take(), (Log{"frmKept unload", "frmKept made", "frmKept load", "frmKept deleted"}));
}

TEST_F(WindowTable, AllGoAtOnceTheLastLoadedFirst) {
    windows.load("frmKept");
    windows.open("frmLent");
    EXPECT_EQ(windows.loadedWindows().size(), 2);
    EXPECT_EQ(windows.loadedWindows().first()->objectName(), "frmKept");
    written.clear();
    windows.unloadAll();
    EXPECT_EQ(written, (Log{"frmLent unload", "frmLent deleted", "frmKept unload", "frmKept deleted"}));
    EXPECT_TRUE(windows.loadedWindows().isEmpty());
}

TEST_F(WindowTable, WithoutAnEndInOrderTheyGoWithTheTable) {
    auto other = std::make_unique<ToolWindows>(context, main, Table);
    other->load("frmKept");
    other->load("frmLent");
    other->unload("frmLent");
    written.clear();
    other.reset();
    EXPECT_EQ(written, (Log{"frmKept deleted", "frmLent deleted"}));
}

TEST_F(WindowTable, AWindowHasTheLanguageOfItsLoading) {
    windows.open("frmLent");
    shown("frmLent").setWindowTitle("as loaded");
    commands.language.LoadLanguage();
    EXPECT_EQ(shown("frmLent").windowTitle(), "as loaded");
}

TEST_F(WindowTable, AWindowOpensAboveTheOneThatAskedForIt) {
    windows.open("frmKept");
    windows.open("frmLent", {windows.window("frmKept")});
    EXPECT_EQ(shown("frmLent").windowHandle()->transientParent(), shown("frmKept").windowHandle());
}

TEST_F(WindowTable, RegistersTheItemsOfTheRowsThatHaveOne) {
    CommandTable table;
    windows.registerRows(table);
    ASSERT_EQ(table.items().size(), 1u);
    EXPECT_EQ(table.items()[0].item, "mnuLent");
    table.items()[0].run();
    EXPECT_TRUE(shown("frmLent").isVisible());
}

TEST_F(WindowTable, BringsTheMainWindowIntoView) {
    main.hide();
    windows.showMain();
    EXPECT_TRUE(main.isVisible());
}

// The program's own table.
TEST(ToolTable, HasEachWindowAndEachItemOnce) {
    std::set<std::string> names, items;
    for (const ToolRow& row : toolRows()) {
        EXPECT_TRUE(names.insert(row.form).second) << row.form;
        EXPECT_TRUE(*row.item == '\0' || items.insert(row.item).second) << row.item;
    }
    for (const char* form : {"frmAbout", "frmAltSplash", "frmFileProperties", "frmInstrumentSelector",
                             "frmOptions", "frmTrackProperties"})
        EXPECT_TRUE(names.contains(form)) << form;
}

using OwnTable = ToolBench;

TEST_F(OwnTable, MakesWindowsThatCarryTheNamesOfTheirRows) {
    QWidget main;
    for (const ToolRow& row : toolRows()) {
        const std::unique_ptr<ToolWindow> window(row.make(context, &main));
        EXPECT_EQ(window->objectName(), row.form);
        EXPECT_EQ(window->parentWidget(), &main);
    }
}

} // namespace
} // namespace tabrova::testing

// Every window of the program's table, opened in the main window as a user opens it, and its controls.
#pragma once

#include "tests/shell/main_window.h"

#include <QAbstractButton>
#include <QTabWidget>
#include <QTest>

#include <functional>

namespace tabrova::testing {

class EveryWindowTest : public MainWindowTest {
  protected:
    // A main window of its own for each of the windows.
    void forEachWindow(const std::function<void()>& check) {
        for (const ToolRow& row : toolRows()) {
            row_ = &row;
            page_ = 0;
            SCOPED_TRACE(row.form);
            load();
            openAnew();
            if (opened) check();
            opened = nullptr;
            window.reset();
            if (HasFatalFailure()) return;
        }
    }
    // Also of each of its pages, where a window has a set of tabs or shows one of several panels.
    void forEachPage(const std::function<void()>& check) {
        forEachWindow([&] {
            for (const int pages = pageCount(); page_ < pages; ++page_) {
                SCOPED_TRACE("page " + std::to_string(page_));
                if (page_ > 0) openAnew();
                check();
            }
        });
    }
    // The same page of the same window once more, as it comes up.
    void openAnew() {
        window->tools().unload(row_->form);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        openAsUser();
        opened = window->tools().window(row_->form);
        ASSERT_NE(opened, nullptr);
        opened->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(opened));
        if (page_ > 0) showPage();
        QApplication::processEvents();
    }
    bool is(std::string_view form) const { return form == row_->form; }

    static QString nameOf(const QWidget* widget) { return widget ? widget->objectName() : "nothing"; }
    static std::string pathOf(const QWidget& widget) {
        return (widget.window()->objectName() + "." + widget.objectName() + " (" +
                widget.metaObject()->className() + ")")
            .toStdString();
    }
    // The widgets of the window that the user can see and use now, the window itself not among them.
    QList<QWidget*> usable() const {
        QList<QWidget*> widgets = opened->findChildren<QWidget*>();
        widgets.removeIf([this](const QWidget* widget) {
            return widget->window() != opened || !widget->isVisible() || !widget->isEnabled();
        });
        return widgets;
    }
    // Where the Tab key comes by in one round, the control that has the focus first.
    QList<QWidget*> walk(Qt::Key key = Qt::Key_Tab) const {
        constexpr int Most = 500;
        QList<QWidget*> stops;
        QWidget* at = opened->focusWidget();
        while (at && !stops.contains(at) && stops.size() < Most) {
            stops.append(at);
            QTest::keyClick(opened->windowHandle(), key,
                            key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            at = opened->focusWidget();
        }
        return stops;
    }
    QRect placeOf(const QWidget& widget) const { return {widget.mapTo(opened, QPoint()), widget.size()}; }

    ToolWindow* opened = nullptr;

  private:
    QTabWidget* tabs() const { return opened->findChild<QTabWidget*>(); }
    QAbstractButton* option(int page) const {
        return opened->findChild<QAbstractButton*>(QString("mnuOption(%1)").arg(page));
    }
    int pageCount() const {
        if (tabs()) return tabs()->count();
        int pages = 1;
        while (option(pages))
            ++pages;
        return pages;
    }
    void showPage() {
        if (tabs())
            tabs()->setCurrentIndex(page_);
        else
            option(page_)->click();
    }
    void press(const char* form, const char* button) {
        QTest::mouseClick(control<QAbstractButton>(*window->tools().window(form), button), Qt::LeftButton);
    }
    void openAsUser() {
        if (is("frmPercussion")) {
            window->document().GuitarTrackFlags.front() = 0;
            window->editor().refreshdrawing();
        }
        if (*row_->item != '\0') return trigger(row_->item);
        if (is("frmExport")) return trigger("mnuExportText");
        if (is("frmInstrumentSelector")) {
            trigger("mnuTrackProps");
            press("frmTrackProperties", "Command2");
        } else if (is("frmChordTypeCreator")) {
            trigger("mnuChordManager");
            press("frmChordWizard", "Command1");
        } else if (is("frmAltSplash")) {
            window->Form_Load({}, frmMain::Splash::AsSettingsSay);
        } else {
            ADD_FAILURE() << "nobody knows how a user opens " << row_->form;
        }
    }

    const ToolRow* row_ = nullptr;
    int page_ = 0;
};

} // namespace tabrova::testing

// A real main window on recording services, in a program folder of its own.
#pragma once

#include "core/files/text_lines.h"
#include "platform/recording_services.h"
#include "shell/frmMain.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tabrova::testing {

class MainWindowTest : public ::testing::Test, protected RecordingServices {
  protected:
    MainWindowTest() {
        const std::filesystem::path assets = std::filesystem::path(TABROVA_SOURCE_DIR) / "assets";
        std::filesystem::copy(assets / "lang.trl", folder());
        std::filesystem::copy(assets / "genmidi.txt", folder());
        std::filesystem::copy(assets / "languages", folder() / "languages",
                              std::filesystem::copy_options::recursive);
    }

    std::filesystem::path folder() const { return home.path().toStdString(); }
    frmMain& load() {
        window = std::make_unique<frmMain>(services);
        window->resizeClient(1000, 700);
        window->show();
        window->Form_Load({}, frmMain::Splash::Never);
        return *window;
    }
    template <class Control>
    Control* control(const QWidget& form, const char* name) {
        auto* found = form.findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    // A window that the program has loaded.
    static QWidget* form(const char* name) {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == name) return widget;
        return nullptr;
    }
    void trigger(const char* item) { window->menu().action(item)->trigger(); }

    QTemporaryDir home;
    int ends = 0; // of the program, at once
    Services services = RecordingServices::services(folder(), [this] { ++ends; });
    std::unique_ptr<frmMain> window;
};

} // namespace tabrova::testing

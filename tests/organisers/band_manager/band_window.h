// The band manager on a bench, worked by mouse and keys.
#pragma once

#include "organisers/band_manager/frmBandManager.h"
#include "tests/workbench/tool_bench.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <fstream>

namespace tabrova::testing {

class BandWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmBandManager>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
    }
    // As the table of the windows lets it go.
    void close() {
        form->close();
        form->Form_Unload();
        form.reset();
    }
    template <class Control = QWidget>
    Control& control(const QString& name) {
        auto* found = form->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }
    std::string text(const QString& box) { return control<QLineEdit>(box).text().toStdString(); }
    void write(const QString& box, const QString& text) { control<QLineEdit>(box).setText(text); }
    void press(const QString& button) { QTest::mouseClick(&control(button), Qt::LeftButton); }
    void choose(int option) { press(QString("mnuOption(%1)").arg(option)); }
    bool seen(const char* name) { return control(name).isVisible(); }
    QTabWidget& tabs() { return control<QTabWidget>("tbMembers"); }
    // Captions of the tabs that show.
    QStringList shownTabs() {
        QStringList captions;
        for (int tab = 0; tab < tabs().count(); ++tab)
            if (tabs().isTabVisible(tab)) captions.append(tabs().tabText(tab));
        return captions;
    }
    void store(const char* key, const QString& value) { settings->SaveSetting("Band", key, value); }
    std::string stored(const QString& key) {
        return settings->GetSetting("Band", key, "(not stored)").toStdString();
    }

    std::filesystem::path file(const std::string& name) { return folder() / "gigs" / name; }
    void bring(const std::string& name, const std::string& bytes) {
        std::filesystem::create_directories(folder() / "gigs");
        std::ofstream(file(name), std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::string& name) {
        std::ifstream input(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    QListWidget& gigs() { return control<QListWidget>("File1"); }
    std::vector<std::string> gigNames() {
        std::vector<std::string> names;
        for (int row = 0; row < gigs().count(); ++row)
            names.push_back(gigs().item(row)->text().toStdString());
        return names;
    }
    QPoint placeOf(int row) { return gigs().visualItemRect(gigs().item(row)).center(); }
    void click(int row) { QTest::mouseClick(gigs().viewport(), Qt::LeftButton, {}, placeOf(row)); }
    void doubleClick(int row) { QTest::mouseDClick(gigs().viewport(), Qt::LeftButton, {}, placeOf(row)); }
    void enterGig(const QString& month, const QString& day, const QString& year, const QString& title,
                  const QString& memo) {
        write("txtmonth", month);
        write("txtday", day);
        write("txtyear", year);
        write("txtname", title);
        write("txtmemo", memo);
        press("Command6");
    }

    std::unique_ptr<frmBandManager> form;
};

} // namespace tabrova::testing

// The language in the real windows: every caption from a file whose every line differs, and every installed
// language without a clipped text.
#include "core/language/language_lines.h"
#include "forms/control_names.h"
#include "organisers/about/frmAbout.h"
#include "tests/shell/main_window.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <fstream>

namespace tabrova {
namespace {

class LanguageWindows : public testing::MainWindowTest {
  protected:
    void openAllWindows() {
        for (const ToolRow& row : toolRows())
            window->tools().open(row.form);
        QApplication::processEvents();
    }
    // A window whose lines are there already and that has no row in the table yet.
    bool isStillToCome(std::string_view form) { return form != "frmMain" && !window->tools().has(form); }

    static QString captionOf(const QWidget& form, const QString& name) {
        QObject* control = controlNamed(form, name);
        if (!control) control = controlNamed(form, name + "(0)");
        if (auto* action = qobject_cast<QAction*>(control)) return action->text();
        if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->text();
        if (auto* label = qobject_cast<QLabel*>(control)) return label->text();
        if (auto* group = qobject_cast<QGroupBox*>(control)) return group->title();
        if (auto* box = qobject_cast<QLineEdit*>(control)) return box->text();
        auto* silent = qobject_cast<QWidget*>(control);
        if (silent && !qobject_cast<QTabWidget*>(silent)) return silent->accessibleName();
        const qsizetype bracket = name.indexOf('(');
        auto* tabs = qobject_cast<QTabWidget*>(controlNamed(form, name.left(bracket)));
        return tabs ? tabs->tabText(name.mid(bracket + 1, 1).toInt()) : "no such control";
    }

    static bool isClipped(const QWidget& widget) {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        if (label && label->wordWrap()) return label->height() < label->heightForWidth(label->width());
        const auto* group = qobject_cast<const QGroupBox*>(&widget);
        const int needed = group ? group->fontMetrics().horizontalAdvance(group->title()) + 16
                                 : widget.minimumSizeHint().width();
        return widget.width() < needed || widget.height() < widget.fontMetrics().height();
    }

    // Texts that hold what the user brings, and so may be cut.
    static bool mayBeCut(const QWidget& widget) {
        return QStringList{"lblSoundBank", "StatusBar1(1)", "Image1"}.contains(widget.objectName());
    }

    void expectNothingClipped(const QWidget& form, const std::string& language) {
        for (QWidget* widget : form.findChildren<QWidget*>()) {
            const bool text = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                              qobject_cast<QGroupBox*>(widget);
            if (!text || !widget->isVisible() || widget->window() != &form || mayBeCut(*widget)) continue;
            if (widget->parentWidget()->objectName() == "Toolbar1") continue;
            EXPECT_FALSE(isClipped(*widget)) << language << " " << form.objectName().toStdString() << "."
                                             << widget->objectName().toStdString() << ": " << widget->width()
                                             << " of " << widget->minimumSizeHint().width();
        }
    }
    // Panels of which an option shows one at a time.
    void expectNothingClippedOnAnyPanel(QWidget& form, const std::string& language) {
        for (int option = 0;; ++option) {
            auto* button =
                qobject_cast<QAbstractButton*>(controlNamed(form, QString("mnuOption(%1)").arg(option)));
            if (option > 0 && !button) return;
            if (button) button->click();
            expectNothingClippedOnAnyTab(form, language);
        }
    }
    void expectNothingClippedOnAnyTab(QWidget& form, const std::string& language) {
        const QList<QTabWidget*> sets = form.findChildren<QTabWidget*>();
        for (QTabWidget* tabs : sets)
            for (int tab = 0; tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                QApplication::processEvents();
                expectNothingClipped(form, language);
            }
        if (sets.isEmpty()) expectNothingClipped(form, language);
    }
};

TEST_F(LanguageWindows, EveryAnswerOfABoxHasItsOwnWord) {
    load();
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::Ok], "OK");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::Cancel], "Cancel");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::Yes], "&Yes");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::No], "&No");
}

TEST_F(LanguageWindows, EveryLineComesToItsControl) {
    std::ofstream file(folder() / "lang.trl", std::ios::trunc);
    for (int number = 1; number <= lastLanguageLine(); ++number)
        file << "Line " << number << "\n";
    file.close();
    load();
    openAllWindows();
    int captions = 0;
    for (const FormLines& lines : languageForms()) {
        if (isStillToCome(lines.form)) continue;
        QWidget* shown = form(lines.form);
        ASSERT_NE(shown, nullptr) << lines.form;
        for (const LanguageLine& line : lines.lines) {
            const QString text = QString("Line %1").arg(line.number);
            const QString name = line.target;
            if (line.use == LineUse::Title) {
                const bool named = QStringList{"frmMetronome", "frmDrumMachine"}.contains(lines.form);
                EXPECT_EQ(shown->windowTitle(), (named ? "Tabrova - " : "") + text);
            }
            if (line.use == LineUse::Caption) {
                EXPECT_EQ(captionOf(*shown, name).toStdString(), text.toStdString())
                    << lines.form << "." << line.target;
            }
            if (line.use == LineUse::ToolTip) {
                auto* control = qobject_cast<QWidget*>(controlNamed(*shown, name));
                ASSERT_NE(control, nullptr) << line.target;
                EXPECT_TRUE(control->toolTip() == text || control->toolTip().startsWith(text + " ("))
                    << line.target;
            }
            ++captions;
        }
    }
    EXPECT_GT(captions, 190);
    EXPECT_EQ(form("frmTrackProperties")->windowTitle(), "Line 294Untitled Track");
    EXPECT_EQ(control<QLabel>(*form("frmTrackProperties"), "lblPatchDisplay")->text(),
              "Line 412Acoustic Guitar (nylon)");
    EXPECT_EQ(control<QLabel>(*form("frmOptions"), "lblAudioOutput")->text(), "Line 457");
    EXPECT_EQ(control<QWidget>(*form("frmAltSplash"), "imgOptions(2)")->toolTip(), "Line 418");
    EXPECT_EQ(boxes.buttonTexts[BoxAnswer::No], "Line 392");
}

TEST_F(LanguageWindows, NoTextIsClippedInAnyInstalledLanguage) {
    int languages = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder() / "languages")) {
        std::filesystem::copy_file(entry.path() / "lang.trl", folder() / "lang.trl",
                                   std::filesystem::copy_options::overwrite_existing);
        load();
        openAllWindows();
        const std::string name = entry.path().filename().string();
        for (const char* panel : {"picBend", "picRepeat", "picTrackChooser", "picNoteSelector"})
            control<QWidget>(*window, panel)->show();
        expectNothingClipped(*window, name);
        for (ToolWindow* other : window->tools().loadedWindows())
            expectNothingClippedOnAnyPanel(*other, name);
        QAction* last = window->menuBar()->actions().last();
        EXPECT_LE(window->menuBar()->actionGeometry(last).right(), 783) << name;
        window.reset();
        ++languages;
    }
    EXPECT_EQ(languages, 7);
}

TEST_F(LanguageWindows, AFileOf200LinesGivesTheMainFormItsTextsAndTheOptionsTheBuiltInOnes) {
    std::ofstream file(folder() / "lang.trl", std::ios::trunc);
    for (int number = 1; number <= 200; ++number)
        file << "Line " << number << "\n";
    file.close();
    load();
    trigger("mnuToolsOptions");
    EXPECT_EQ(window->menu().action("mnuFile")->text(), "Line 5");
    EXPECT_EQ(window->menu().action("mnuAbout")->text(), "Line 95");
    EXPECT_EQ(form("frmOptions")->windowTitle(), "Options");
    EXPECT_EQ(window->menu().action("mnuChoose")->text(), "&Choose Track");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(LanguageWindows, WithoutAFileAllTextsAreTheBuiltInOnes) {
    std::filesystem::remove(folder() / "lang.trl");
    load();
    for (const LanguageLine& line : languageLinesOf("frmMain"))
        if (line.use == LineUse::Caption) {
            EXPECT_EQ(captionOf(*window, line.target), line.text) << line.target;
        }
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(LanguageWindows, AnyFileAtAllIsNoHazard) {
    std::string binary;
    for (unsigned value = 0; value < 100000; ++value)
        binary.push_back(static_cast<char>(value * value % 251));
    const std::string longLine(3000000, 'x');
    for (const std::string& bytes : {std::string(), binary, longLine, std::string(2000000, '\n')}) {
        std::ofstream(folder() / "lang.trl", std::ios::trunc | std::ios::binary) << bytes;
        load();
        openAllWindows();
        EXPECT_EQ(window->document().StaffCount, 1);
        window.reset();
    }
}

TEST_F(LanguageWindows, ApplyLanguagePatchReadsTheFileMenusCaption) {
    load();
    std::ofstream(folder() / "languages" / "patch") << "&Fichero\nsecond";
    window->ApplyLanguagePatch("patch");
    EXPECT_EQ(window->menu().action("mnuFile")->text(), "&Fichero");
    for (const char* name : {"missing", "German", "../lang.trl", ".."})
        window->ApplyLanguagePatch(name);
    EXPECT_EQ(window->menu().action("mnuFile")->text(), "&Fichero");
}

} // namespace
} // namespace tabrova

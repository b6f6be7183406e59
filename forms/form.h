// What every window but the main one does: its texts, its keys, where its focus stands, and what it tells its
// owner. Return and Enter press the button that has the focus; elsewhere the default button, and only one
// that the form made so. Escape closes. Tab follows the reading order.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QString>

#include <filesystem>
#include <functional>
#include <string_view>

namespace tabrova {

class FocusMark;

class Form : public QDialog {
  public:
    Form(const char* name, const std::filesystem::path& programFolder, QWidget* parent);

    // The owner calls them: when it has made the form or shows it anew, and before it lets it go.
    virtual void Form_Load() { LoadLanguage(); }
    virtual void Form_Unload() {}
    // The form's texts, from the active language file. The controls must be there already.
    virtual void LoadLanguage();

    void done(int result) override;

    // Called once each time that the window was open and is closed, whichever way; not when it is hidden or
    // destroyed. The form may be deleted in it.
    std::function<void()> closed;

  protected:
    // Takes the texts that the form holds for its messages.
    virtual void takeMessage(std::string_view name, const QString& text);
    // The control that has the focus whenever the form is shown, instead of the first one. One that is hidden
    // or disabled by then leaves it to the first.
    void setFirstFocus(QWidget* control) { firstFocus_ = control; }
    const std::filesystem::path& programFolder() const { return programFolder_; }

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    // Controls that were made since the last time behave as all do.
    void settleControls();
    void focusFirst();
    // Return or Enter at this control.
    void takeReturn(QWidget* at, QKeyEvent* event);

    std::filesystem::path programFolder_;
    QPointer<QWidget> firstFocus_;
    QObject* returnKey_;
    FocusMark* focusMark_;
};

} // namespace tabrova

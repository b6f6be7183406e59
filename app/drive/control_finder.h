// Finds windows and controls by their own names, without regard to case: `frmMain`, `picDocument`,
// `frmAbout.cmdOK`.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

namespace tabrova {

// What a name stands for; an error text where it stands for nothing.
struct FoundControl {
    QObject* object = nullptr;
    QString error;
};

class frmMain;

// The main window and what its table of windows has loaded, hidden ones included.
QList<QWidget*> loadedForms(frmMain& main);
QWidget* findForm(frmMain& main, const QString& name);

// `name` is a form, a control of the main window or `form.control`.
FoundControl findControl(frmMain& main, const QString& name);

} // namespace tabrova

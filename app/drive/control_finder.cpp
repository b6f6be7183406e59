#include "app/drive/control_finder.h"

#include "forms/control_names.h"
#include "shell/frmMain.h"

namespace tabrova {

namespace {

bool sameName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

} // namespace

QList<QWidget*> loadedForms(frmMain& main) {
    QList<QWidget*> forms = {&main};
    for (ToolWindow* window : main.tools().loadedWindows())
        forms.append(window);
    return forms;
}

QWidget* findForm(frmMain& main, const QString& name) {
    for (QWidget* form : loadedForms(main))
        if (sameName(form->objectName(), name)) return form;
    return nullptr;
}

FoundControl findControl(frmMain& main, const QString& name) {
    if (QWidget* form = findForm(main, name)) return {form, {}};
    const qsizetype dot = name.indexOf('.');
    const bool hasForm = dot > 0 && name.startsWith("frm", Qt::CaseInsensitive);
    if (!hasForm && name.startsWith("frm", Qt::CaseInsensitive)) return {nullptr, "not loaded"};
    QWidget* form = findForm(main, hasForm ? name.left(dot) : QString("frmMain"));
    if (!form) return {nullptr, "not loaded"};
    QObject* control = controlNamed(*form, hasForm ? name.mid(dot + 1) : name);
    return control ? FoundControl{control, {}} : FoundControl{nullptr, "no such control"};
}

} // namespace tabrova

#include "app/drive/control_finder.h"

#include "forms/control_names.h"

#include <QApplication>

namespace tabrova {

namespace {

bool sameName(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

} // namespace

QList<QWidget*> loadedForms() {
    QList<QWidget*> forms;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName().startsWith("frm", Qt::CaseInsensitive)) forms.append(widget);
    return forms;
}

QWidget* findForm(const QString& name) {
    for (QWidget* form : loadedForms())
        if (sameName(form->objectName(), name)) return form;
    return nullptr;
}

FoundControl findControl(const QString& name) {
    if (QWidget* form = findForm(name)) return {form, {}};
    const qsizetype dot = name.indexOf('.');
    const bool hasForm = dot > 0 && name.startsWith("frm", Qt::CaseInsensitive);
    if (!hasForm && name.startsWith("frm", Qt::CaseInsensitive)) return {nullptr, "not loaded"};
    QWidget* form = findForm(hasForm ? name.left(dot) : QString("frmMain"));
    if (!form) return {nullptr, "not loaded"};
    QObject* control = controlNamed(*form, hasForm ? name.mid(dot + 1) : name);
    return control ? FoundControl{control, {}} : FoundControl{nullptr, "no such control"};
}

} // namespace tabrova

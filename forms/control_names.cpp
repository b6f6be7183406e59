#include "forms/control_names.h"

namespace tabrova {

bool belongsToForm(const QObject* object, const QWidget* form) {
    for (const QObject* at = object; at; at = at->parent()) {
        if (at == form) return true;
        const auto* widget = qobject_cast<const QWidget*>(at);
        if (widget && widget->isWindow() && widget->objectName().startsWith("frm", Qt::CaseInsensitive))
            return false;
    }
    return false;
}

QList<QObject*> namedControls(const QWidget& form) {
    QList<QObject*> controls;
    for (QObject* object : form.findChildren<QObject*>())
        if (!object->objectName().isEmpty() && belongsToForm(object, &form)) controls.append(object);
    return controls;
}

QObject* controlNamed(const QWidget& form, const QString& name) {
    for (QObject* object : form.findChildren<QObject*>())
        if (object->objectName().compare(name, Qt::CaseInsensitive) == 0 && belongsToForm(object, &form))
            return object;
    return nullptr;
}

} // namespace tabrova

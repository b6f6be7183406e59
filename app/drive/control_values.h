// Reads and sets controls as a user would see and set them.
#pragma once

#include <QJsonValue>
#include <QObject>
#include <QString>

#include <optional>

namespace tabrova {

// The text, number, check or selected row that `setControl` would take.
QJsonValue controlValue(QObject* control);

// std::nullopt for a property that this kind of control does not have.
std::optional<QJsonValue> controlProperty(QObject* control, const QString& property);

// Raises all the signals of a user's act. An error text, empty if it was done.
QString setControl(QObject* control, const QString& value);

// Whether a person could reach the item: it and every menu above it.
bool isActionReachable(QObject* action);

} // namespace tabrova

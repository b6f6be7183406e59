// The keys of the main window as a list: what its menus and its toolbar show, and the page's own.
#pragma once

#include "core/language/language_words.h"

#include <QString>

#include <vector>

class QWidget;

namespace tabrova {

struct KeyRow {
    QString name; // what the keys do, or the heading of the rows below it
    QString keys; // "" for a heading
};

std::vector<KeyRow> keyRows(const QWidget& mainWindow, const LanguageWords& words);

} // namespace tabrova

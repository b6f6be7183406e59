// The texts of a form: the built-in ones, and those of the active language file in their place. Which line
// feeds which control stands in the table of core/language.
#pragma once

#include <QString>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <string_view>

namespace tabrova {

// Takes the texts that the form holds for its messages.
using MessageSink = std::function<void(std::string_view name, const QString& text)>;

// The built-in texts; the form goes by its object name. The controls must be there already.
void showBuiltInCaptions(QWidget& form, const MessageSink& message = {});

// The control, which shows no caption, is called in the chosen language as this other control or menu item of
// its form is.
void nameAfter(QWidget* control, const char* captioned);

// The active language file's texts as far as the file goes, the built-in ones behind: what a form does first
// when it loads. Texts that are longer than any caption can be are cut.
void loadLanguage(QWidget& form, const std::filesystem::path& programFolder, const MessageSink& message = {});

} // namespace tabrova

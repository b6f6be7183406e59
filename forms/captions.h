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

// The active language file's texts, line by line as far as the file goes: what lies behind its end, or what a
// missing file would give, stays as it is.
void readLanguage(QWidget& form, const std::filesystem::path& programFolder, const MessageSink& message = {});

// Both: what a form does first when it loads.
void loadLanguage(QWidget& form, const std::filesystem::path& programFolder, const MessageSink& message = {});

std::filesystem::path activeLanguageFile(const std::filesystem::path& programFolder);
std::filesystem::path installedLanguages(const std::filesystem::path& programFolder);

} // namespace tabrova

// Texts at the edge of the toolkit: file names and window titles come through as they are.
#pragma once

#include <QString>
#include <QWidget>

#include <filesystem>

namespace tabrova {

// Never fails, whatever bytes a name holds; what is no text in it becomes the replacement character.
QString textOf(const std::filesystem::path& path);
std::filesystem::path pathOf(const QString& text);

// The toolkit would take "[*]" in a title for a mark of its own.
void setTitleOf(QWidget& window, const QString& title);
QString titleOf(const QWidget& window);

} // namespace tabrova

#include "platform/file_chooser.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace tabrova {

namespace {

// "Name|*.ext|Name|*.ext" as the toolkit writes it.
QStringList nameFilters(const QString& filter) {
    const QStringList parts = filter.split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters.append(parts[i].trimmed() + " (" + QString(parts[i + 1]).replace(';', ' ') + ")");
    return filters;
}

} // namespace

std::optional<QString> DesktopFileChooser::choose(const FileQuestion& question) {
    QFileDialog dialog(QApplication::activeWindow());
    const bool saving = question.kind == FileQuestion::Kind::Save;
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(question.filter));
    if (saving) dialog.setDefaultSuffix(question.defaultExtension);
    if (!question.name.isEmpty()) {
        const QFileInfo file(question.name);
        dialog.setDirectory(file.absolutePath());
        dialog.selectFile(file.fileName());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> RecordingFileChooser::choose(const FileQuestion& question) {
    std::optional<QString> answer;
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    }
    asked_.append({question, answer});
    return answer;
}

QList<RecordingFileChooser::Asked> RecordingFileChooser::take() { return std::exchange(asked_, {}); }

} // namespace tabrova

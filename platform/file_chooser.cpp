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
    dialog.setDirectory(folderFor(question.name));
    if (!question.name.isEmpty()) dialog.selectFile(QFileInfo(question.name).fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    remember(dialog.selectedFiles().constFirst());
    return dialog.selectedFiles().constFirst();
}

// A remembered folder that is gone is none.
QString DesktopFileChooser::folderFor(const QString& name) const {
    const QFileInfo file(name);
    const bool placed = !name.isEmpty() && file.path() != ".";
    const QString last = settings_ ? settings_->GetSetting("Files", "Folder", folder_) : folder_;
    return !placed && QFileInfo(last).isDir() ? last : file.absolutePath();
}

void DesktopFileChooser::remember(const QString& file) {
    folder_ = QFileInfo(file).absolutePath();
    if (settings_) settings_->SaveSetting("Files", "Folder", folder_);
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

#include "forms/form.h"

#include "forms/captions.h"

namespace tabrova {

Form::Form(const char* name, const std::filesystem::path& programFolder, QWidget* parent)
    : QDialog(parent), programFolder_(programFolder) {
    setObjectName(name);
}

void Form::LoadLanguage() {
    loadLanguage(*this, programFolder_,
                 [this](std::string_view name, const QString& text) { takeMessage(name, text); });
}

void Form::done(int result) {
    QDialog::done(result);
    if (closed) closed();
}

} // namespace tabrova

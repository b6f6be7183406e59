#include "core/language/language_lines.h"

#include "core/language/form_lines.h"

#include <algorithm>
#include <vector>

namespace tabrova {

namespace {

std::vector<FormLines> gatherForms() {
    std::vector<FormLines> forms = {{"frmMain", mainFormLines()}};
    for (const auto room : {shellFormLines(), toolFormLines(), organiserFormLines()})
        forms.insert(forms.end(), room.begin(), room.end());
    return forms;
}

} // namespace

std::span<const FormLines> languageForms() {
    static const std::vector<FormLines> forms = gatherForms();
    return forms;
}

std::span<const LanguageLine> languageLinesOf(std::string_view form) {
    for (const FormLines& lines : languageForms())
        if (form == lines.form) return lines.lines;
    return {};
}

int lastLanguageLine() {
    int last = 0;
    for (const FormLines& form : languageForms())
        for (const LanguageLine& line : form.lines)
            last = std::max(last, line.number);
    return last;
}

} // namespace tabrova

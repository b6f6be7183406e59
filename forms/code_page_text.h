// Texts of the document at the edge of the windows: bytes of the code page inside, the toolkit's strings
// outside.
#pragma once

#include <QString>
#include <QValidator>

#include <functional>
#include <string>
#include <string_view>

class QLineEdit;

namespace tabrova {

QString fromCodePage(std::string_view bytes);
// A title or a name as windows show it, its beginning if it is a long one.
QString shownName(const std::string& bytes);
// A character that the page does not hold becomes "?"; text boxes refuse such characters before it comes to
// that.
std::string toCodePage(const QString& text);

// Lets only characters of the code page into a text box; control characters become blanks.
class CodePageValidator : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int& position) const override;
};

// The box takes only what a file can hold; at a refused character `hint` shows beside it.
void restrictToCodePage(QLineEdit& box, std::function<QString()> hint);

} // namespace tabrova

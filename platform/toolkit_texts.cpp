#include "platform/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tabrova {

void showToolkitTextsIn(const QString& language) {
    constexpr char Name[] = "toolkitTexts";
    delete qApp->findChild<QTranslator*>(Name);
    auto* texts = new QTranslator(qApp);
    texts->setObjectName(Name);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const QLocale locale(language);
    // The toolkit's English is what it says without a translation.
    const bool foreign = locale.language() != QLocale::English && locale.language() != QLocale::C;
    if (foreign && texts->load(locale, "qtbase", "_", folder)) QCoreApplication::installTranslator(texts);
}

} // namespace tabrova

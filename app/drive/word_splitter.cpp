#include "app/drive/word_splitter.h"

namespace tabrova {

QStringList splitWords(const QString& line) {
    QStringList words;
    QString word;
    bool quoted = false;
    bool started = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (quoted && c == '\\' && i + 1 < line.size()) {
            const QChar escaped = line[++i];
            word.append(escaped == 'n' ? QChar('\n') : escaped);
        } else if (c == '"') {
            quoted = !quoted;
            started = true;
        } else if (c.isSpace() && !quoted) {
            if (started) words.append(word);
            word.clear();
            started = false;
        } else {
            word.append(c);
            started = true;
        }
    }
    if (started) words.append(word);
    return words;
}

} // namespace tabrova

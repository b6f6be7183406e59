// Words that are longer than any word, as of a file that is no text. The toolkit breaks lines anywhere in
// them, but in a time that grows with the square of their length.
#pragma once

#include <QString>

namespace tabrova {

// A place to break a line, of no width, after so many characters without one.
class LongWords {
  public:
    static constexpr qsizetype LongestWord = 500; // characters

    // The next text of a paragraph.
    QString breakable(const QString& text);

  private:
    qsizetype length_ = 0; // of the word at the end
};

} // namespace tabrova

// The General MIDI instruments' names, from `genmidi.txt` in the program's folder: one a line, the line
// number from 0 being the program.
#pragma once

#include <QStringList>

#include <filesystem>

namespace tabrova {

class InstrumentNames {
  public:
    // Without the file there are none.
    void fill_sound_list(const std::filesystem::path& programFolder);

    const QStringList& names() const { return names_; }
    // "" for a program that the list does not have.
    QString name(int program) const { return names_.value(program); }

  private:
    QStringList names_;
};

} // namespace tabrova

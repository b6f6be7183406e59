// `txtNotes`: several lines of at most 250 characters of the code page, a line end counting two.
#pragma once

#include "forms/code_page_box.h"

namespace tabrova {

class NotesBox : public CodePageBox {
  public:
    explicit NotesBox(QWidget* parent);

    // Notes that a file brought along may be longer; they do not grow.
    void showNotes(const QString& notes);

  protected:
    qsizetype room() const override;

  private:
    void refuseTheRest();

    qsizetype most_;
};

} // namespace tabrova

// The print surface: one text in one font of fixed width.
#pragma once

#include <QList>
#include <QPageLayout>
#include <QString>

#include <utility>

class QPrinter;

namespace tabrova {

struct PrintJob {
    QString name; // for the printer's queue
    QString text; // lines end in LF
    QString fontFamily;
    int pointSize = 0;
    double left = 0.0; // offset of the text from the printable area, in millimetres
    double top = 0.0;
};

// Where the text stands on a sheet, in millimetres from its corner. To the right and below the printer's own
// margins stay.
QRectF textArea(const PrintJob& job, const QPageLayout& sheet);

// On as many pages as it takes, those of the printer's range alone if it has one.
void printOn(QPrinter& printer, const PrintJob& job);

class TextPrinter {
  public:
    virtual ~TextPrinter() = default;
    virtual void print(const PrintJob& job) = 0;
};

// Asks for a printer first; cancelling prints nothing.
class DesktopTextPrinter : public TextPrinter {
  public:
    void print(const PrintJob& job) override;
};

class RecordingTextPrinter : public TextPrinter {
  public:
    void print(const PrintJob& job) override { jobs_.append(job); }
    QList<PrintJob> take() { return std::exchange(jobs_, {}); }

  private:
    QList<PrintJob> jobs_;
};

} // namespace tabrova

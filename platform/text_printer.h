// The print surface: one text in one font.
#pragma once

#include <QList>
#include <QPageLayout>
#include <QString>

#include <utility>

namespace tabrova {

struct PrintJob {
    QString text;
    QString fontFamily;
    int pointSize = 0;
    double left = 0.0; // offset of the text from the printable area, in points
    double top = 0.0;
};

// The printer's page with the job's offset inside its left and top margins; the other two stay.
QPageLayout layoutFor(const PrintJob& job, QPageLayout printersOwn);

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

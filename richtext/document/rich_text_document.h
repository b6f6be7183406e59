// A rich text as a document of the toolkit. Nothing but the text itself is looked at: pictures are decoded
// from its own bytes, within bounds, and links are only kept.
#pragma once

#include "richtext/state/rich_text.h"

#include <QTextDocument>

#include <memory>

namespace tabrova {

// A document that loads nothing: whatever it is asked for beside its own pictures is not there.
class ClosedDocument : public QTextDocument {
  public:
    using QTextDocument::QTextDocument;

  protected:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

// The page that it is shown on.
struct RichPage {
    int pixelsPerInch;
    qreal pixelRatio = 1; // of the screen's pixels to the page's
};

std::unique_ptr<QTextDocument> richTextDocument(const RichText& text, const RichPage& page);

} // namespace tabrova

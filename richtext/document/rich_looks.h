// The looks of a rich text as formats of the toolkit.
#pragma once

#include "richtext/state/rich_text.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

namespace tabrova {

struct RichScale {
    const RichText& text;
    int pixelsPerInch;

    qreal pixels(int twips) const { return twips * pixelsPerInch / 1440.0; }
};

QTextCharFormat characterFormat(const CharacterLook& look, const RichScale& scale);

// `hasTabs`: the paragraph's text has any, so that its stops count.
QTextBlockFormat paragraphFormat(const ParagraphLook& look, bool hasTabs, const RichScale& scale);

} // namespace tabrova

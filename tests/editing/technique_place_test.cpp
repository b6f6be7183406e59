// Storing a technique blanks its place on the page at once; the redraw behind a key puts the rest right.
#include "editing/key_codes.h"
#include "tests/editing/fake_window.h"

namespace tabrova::testing {
namespace {

class TechniquePlace : public EditorTest {
  protected:
    // The page as it is drawn, with a piece of blank string of this width right of the cursor's frame.
    void expectBlanked(const QImage& drawn, const Rect& place) {
        QImage expected = drawn;
        carryOut(expected, view.picSource().image(), {place, {331, 1, 9, 7}, Raster::SrcCopy});
        EXPECT_TRUE(sameImage(view.picDocument.image(), expected, "blanked"));
    }
};

TEST_F(TechniquePlace, IsBlankedFromTheFrameToTheNextColumn) {
    keys({key::Right, key::Down, '5', 'V'});
    const QImage drawn = view.picDocument.image().copy();
    const int redraws = window.redraws;
    editor.StoreTechnique(key::Delete);
    EXPECT_EQ(window.redraws, redraws);
    expectBlanked(drawn, {29 + 22 + 13 + 2, 25 + 10 + 1, 29 - 13, 7});
    EXPECT_NE(view.picDocument.image(), drawn);
}

TEST_F(TechniquePlace, IsBlankedAlsoWhereATechniqueIsStored) {
    const QImage drawn = view.picDocument.image().copy();
    editor.StoreTechnique('V');
    expectBlanked(drawn, {22 + 13 + 2, 25 + 1, 29 - 13, 7});
}

TEST_F(TechniquePlace, IsAsWideAsTheColumnsLeave) {
    resizePage(60 + 32 * 40, 472);
    const QImage drawn = view.picDocument.image().copy();
    editor.StoreTechnique('V');
    expectBlanked(drawn, {22 + 13 + 2, 25 + 1, 40 - 13, 7});
}

TEST_F(TechniquePlace, IsNotThereOnColumnsAsNarrowAsTheFrame) {
    for (const int columnWidth : {13, 12, 5}) {
        resizePage(60 + 32 * columnWidth, 472);
        const QImage drawn = view.picDocument.image().copy();
        editor.StoreTechnique('V');
        EXPECT_EQ(techniqueHere(), "v");
        EXPECT_TRUE(sameImage(view.picDocument.image(), drawn, "narrow"));
    }
}

} // namespace
} // namespace tabrova::testing

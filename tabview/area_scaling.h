// A picture at another size: each pixel is the mean of the area that it covers. A part drawn alone has the
// same pixels as in the whole, whatever the part.
#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

namespace tabrova {

class AreaScaling {
  public:
    // From pictures of this size to those of `factor` times it, above 0; the last column and row may cover
    // less.
    AreaScaling(QSize from, double factor);

    QSize from() const { return from_; }
    QSize size() const {
        return {static_cast<int>(columns_.first.size()), static_cast<int>(rows_.first.size())};
    }

    // Both pictures are of Format_RGB32 and of the two sizes; what of `part` lies off `to` is left out.
    void draw(QImage& to, const QRect& part, const QImage& from) const;

  private:
    // What the pixels of one axis are made of: each of `count` pixels of the picture from the first one on,
    // with weights that add up to 256.
    struct Axis {
        int count;
        std::vector<int> first;
        std::vector<std::uint16_t> weights;
    };
    static Axis axis(int length, double factor);

    QSize from_;
    Axis columns_;
    Axis rows_;
};

} // namespace tabrova

// The pictures of buttons that several windows have: arrows, a plus sign, a bin, the sign to play. They are
// drawn in the colour of the button's text, so that they suit every theme.
#pragma once

#include "forms/picture_button.h"

namespace tabrova {

enum class ButtonPicture { ArrowUp, ArrowLeft, ArrowDown, ArrowRight, Plus, Bin, Play };

// A button of the usual size with that picture.
PictureButton* pictureButton(const QString& name, ButtonPicture picture, QWidget* parent);

// 20 pixels, unless the picture has to stand beside larger things.
constexpr QSize ButtonPictureSize = {20, 20};

} // namespace tabrova

// `frmPercussion`, the percussion editor: a small window over the page that writes drums under the document's
// cursor and moves it.
#pragma once

#include "editing/acts.h"
#include "forms/button_pictures.h"
#include "workbench/tool_window.h"

#include <array>

class QCheckBox;
class QLabel;

namespace tabrova {

class DrumList;

class frmPercussion : public ToolWindow, public ActObserver {
  public:
    frmPercussion(const ToolContext& context, QWidget* parent);
    ~frmPercussion() override;

    void Form_Load() override;

    void actEnded(std::string_view act, const Changes& changes) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildPictures();
    void List1_Click();
    // As if the key was pressed in the document.
    void pressKey(int keyCode);
    // The page takes nothing while it plays.
    bool playing() const { return context_.bench.player.playing; }
    void showPlaying();
    void showCursor();

    QCheckBox* chkAuto_;
    DrumList* List1_;
    std::array<PictureButton*, 5> pictures_; // Image1 to Image4 and Image6
    QLabel* Label1_;
};

} // namespace tabrova

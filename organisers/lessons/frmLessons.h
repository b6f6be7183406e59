// `frmLessons`, the lesson viewer: rich text files in a folder of the program's, which the player installs,
// reads and removes.
#pragma once

#include "organisers/lessons/lesson_layout.h"
#include "workbench/tool_window.h"

class QGroupBox;
class QLabel;
class QPushButton;

namespace tabrova {

class FolderList;
class LessonStatusBar;
class LessonView;

class frmLessons : public ToolWindow {
  public:
    frmLessons(const ToolContext& context, QWidget* parent);

    void Form_Load() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildSelector();
    void placeParts();
    void placeSelector();
    void openLesson();
    void bringSelectorBack();
    void installLesson();
    void uninstallLesson();
    std::filesystem::path folder() const { return programFolder() / "lessons"; }

    LessonPlaces places_{};
    QGroupBox* Picture1_;
    FolderList* lstLessons_;
    QPushButton* Command2_;
    QPushButton* Command3_;
    LessonView* txtLesson_;
    LessonStatusBar* StatusBar1_;
    QLabel* Label8_;
    QWidget* logo_;
    QString lessonDialog_; // the file that was chosen last
};

} // namespace tabrova

// The documents that the welcome window offers below its picture: those that were opened last, and the
// examples. A click or Return opens one.
#pragma once

#include "platform/list_box.h"
#include "workbench/tool_window.h"

namespace tabrova {

class DocumentLists : public QWidget {
  public:
    DocumentLists(const ToolContext& context, QWidget* parent);

    // There is nothing to offer.
    bool isEmpty() const { return files_[0].isEmpty() && files_[1].isEmpty(); }

    std::function<void(const QString& file)> chosen;

  protected:
    // What lies around the lists is no part of the picture.
    void mousePressEvent(QMouseEvent* event) override;

  private:
    ListBox* addList(int list, const QString& name, const QString& title);
    void addRow(int list, const QString& name, const QString& file);

    std::array<ListBox*, 2> lists_{};
    std::array<QStringList, 2> files_; // of the rows, whole paths
};

} // namespace tabrova

// How the list of languages marks the one that is in use: bold, with a tick before its name. The rows keep
// their plain names, and room for the tick.
#pragma once

#include <QStyledItemDelegate>

namespace tabrova {

class LanguageMark : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // None for an empty name. The list is to be painted anew by its owner.
    void setLanguage(const QString& name) { language_ = name; }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    QString language_;
};

} // namespace tabrova

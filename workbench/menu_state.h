// What commands ask of the menus: checks and what can be used. Names are those of the items.
#pragma once

#include <QString>

namespace tabrova {

class MenuState {
  public:
    virtual ~MenuState() = default;
    virtual bool isEnabled(const QString& item) const = 0;
    virtual bool isChecked(const QString& item) const = 0;
    virtual void setChecked(const QString& item, bool checked) = 0;
};

} // namespace tabrova

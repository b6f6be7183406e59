// `frmAbout`: the version, the credits and the way to the system information tool.
#pragma once

#include "platform/services.h"

#include <QDialog>

namespace tabrova {

class frmAbout : public QDialog {
  public:
    frmAbout(Services& services, QWidget* parent);

  private:
    void startSystemInformationTool();

    Services& services_;
};

} // namespace tabrova

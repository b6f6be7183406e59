// Opens a web or mail address in the user's own programs.
#pragma once

#include <QStringList>

#include <utility>

namespace tabrova {

class AddressOpener {
  public:
    virtual ~AddressOpener() = default;
    virtual void open(const QString& address) = 0;
};

class DesktopAddressOpener : public AddressOpener {
  public:
    void open(const QString& address) override;
};

class RecordingAddressOpener : public AddressOpener {
  public:
    void open(const QString& address) override { opened_.append(address); }
    // The addresses since the last call.
    QStringList take() { return std::exchange(opened_, {}); }

  private:
    QStringList opened_;
};

} // namespace tabrova

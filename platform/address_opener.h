// Opens a web or mail address in the user's own programs.
#pragma once

#include <QStringList>
#include <QUrl>

#include <utility>

namespace tabrova {

class AddressOpener {
  public:
    virtual ~AddressOpener() = default;
    virtual void open(const QString& address) = 0;
};

// What the system is given: always one address with a scheme, in encoded form, so that none can be taken for
// an option of a program. An address that lacks the scheme is one of the web. Invalid for a text that is no
// address.
QUrl urlOf(const QString& address);

// Opens nothing for a text that is no address.
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

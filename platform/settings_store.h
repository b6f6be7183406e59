// The per-user settings store: texts by section and key, for the application name under which this program
// keeps them.
#pragma once

#include <QMap>
#include <QString>

#include <memory>

class QSettings;

namespace tabrova {

inline const QString SettingsApplication = QStringLiteral("Kelmoor");

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    virtual QString GetSetting(const QString& section, const QString& key,
                               const QString& otherwise) const = 0;
    virtual void SaveSetting(const QString& section, const QString& key, const QString& value) = 0;
};

// Before the first store. A home whose name is no text keeps no settings: the toolkit would put them, and its
// own, into another folder.
void keepToolkitInsideHome();

// The desktop's own store, or a file in its "ini" form.
class DesktopSettingsStore : public SettingsStore {
  public:
    DesktopSettingsStore();
    explicit DesktopSettingsStore(const QString& iniFile);
    ~DesktopSettingsStore() override;
    QString GetSetting(const QString& section, const QString& key, const QString& otherwise) const override;
    void SaveSetting(const QString& section, const QString& key, const QString& value) override;

  private:
    std::unique_ptr<QSettings> settings_;
};

// Starts empty and is gone with the program.
class MemorySettingsStore : public SettingsStore {
  public:
    QString GetSetting(const QString& section, const QString& key, const QString& otherwise) const override {
        return values_.value(section + '/' + key, otherwise);
    }
    void SaveSetting(const QString& section, const QString& key, const QString& value) override {
        values_[section + '/' + key] = value;
    }

  private:
    QMap<QString, QString> values_;
};

} // namespace tabrova

// The base of every window but the main one.
#pragma once

#include <QDialog>

#include <filesystem>
#include <functional>
#include <string_view>

namespace tabrova {

class Form : public QDialog {
  public:
    Form(const char* name, const std::filesystem::path& programFolder, QWidget* parent);

    virtual void Form_Load() { LoadLanguage(); }
    virtual void Form_Unload() {}
    void LoadLanguage();

    std::function<void()> closed;

  protected:
    virtual void takeMessage(std::string_view, const QString&) {}
    void done(int result) override;

  private:
    std::filesystem::path programFolder_;
};

} // namespace tabrova

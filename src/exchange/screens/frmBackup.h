#pragma once

#include <functional>
#include <memory>

#include "core/forms/Form.h"
#include "exchange/Backup.h"

namespace Ui {
class frmBackup;
}

namespace exchange::screens {

/// Makes backups, and holds the settings of how and how often they are made.
class frmBackup : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmBackup(QWidget* parent = nullptr);
    ~frmBackup() override;

    /// `closed` is called after the screen has closed; it may be empty.
    void Setup(std::function<void()> closed = {});

  protected:
    bool MayClose() override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void Connect();
    void ShowConfig();
    void ReadConfig();
    /// Returns the errors in the entries, a line each.
    std::vector<std::string> Errors() const;
    void Browse();
    void Start();
    void Run();
    bool AgreedToKeepNothing() const;
    void AddLine(const BackupLine& line);

    std::unique_ptr<Ui::frmBackup> ui_;
    BackupConfig config_;
    std::function<void()> closed_;
};

} // namespace exchange::screens

#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "core/forms/Form.h"
#include "exchange/Restore.h"

namespace Ui {
class frmRestore;
}

namespace exchange::screens {

/// Shows the contents of a backup and extracts it into a new folder.
class frmRestore : public core::forms::Form {
    Q_OBJECT

  public:
    /// Opens the database in a folder for reading.
    using OpenBooks = std::function<void(const std::filesystem::path& folder)>;

    explicit frmRestore(QWidget* parent = nullptr);
    ~frmRestore() override;

    /// `open`, which may be empty, is offered to the user after a restore.
    void Setup(OpenBooks open = {});

  private:
    void Connect();
    void ChooseContainer();
    void ChooseFolder();
    void ShowEntries();
    void Restore();
    void Run();
    void Tell(const RestoreReport& report);

    std::unique_ptr<Ui::frmRestore> ui_;
    OpenBooks open_;
    QString proposed_; // the folder that was put into the box last
};

} // namespace exchange::screens

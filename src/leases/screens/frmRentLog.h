#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"
#include "leases/RentLog.h"

namespace Ui {
class frmRentLog;
}

namespace leases::screens {

/// One row of a lease's ledger.
class frmRentLog : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmRentLog(QWidget* parent = nullptr);
    ~frmRentLog() override;

    /// Opens a row, or a new one (0) of a lease and class.
    void Setup(std::int32_t id, std::int32_t idLease, TransactionClass rentClass);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;

  private:
    std::unique_ptr<Ui::frmRentLog> ui_;
    /// The fields that the screen doesn't show.
    RentLogEntry entry_;
};

} // namespace leases::screens

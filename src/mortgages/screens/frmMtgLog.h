#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/EntryForm.h"
#include "mortgages/MortgageLog.h"

namespace Ui {
class frmMtgLog;
}

namespace mortgages::screens {

/// One charge of a mortgage. A base payment keeps its split.
class frmMtgLog : public core::forms::EntryForm {
    Q_OBJECT

  public:
    explicit frmMtgLog(QWidget* parent = nullptr);
    ~frmMtgLog() override;

    /// Opens a charge, or a new one (0) of the mortgage.
    void Setup(std::int32_t idMortgageLog, std::int32_t idMortgage);

  protected:
    void Store() override;

  private:
    void ShowEntry();
    void ShowTotal();
    MortgageLogEntry Entered() const;

    std::unique_ptr<Ui::frmMtgLog> ui_;
    std::int32_t id_ = 0;
    MortgageLogEntry entry_;
};

} // namespace mortgages::screens

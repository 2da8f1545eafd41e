#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/EntryForm.h"
#include "leases/ReturnPayment.h"

namespace Ui {
class frmReturnPayment;
}

namespace leases::screens {

/// Undoes a payment of a lease that the bank gave back, after showing each row that this writes.
class frmReturnPayment : public core::forms::EntryForm {
    Q_OBJECT

  public:
    explicit frmReturnPayment(QWidget* parent = nullptr);
    ~frmReturnPayment() override;

    /// Opens for a stored payment. If it can't be returned the reason is shown instead.
    void Setup(std::int32_t idTransaction);

  protected:
    void Store() override;
    std::vector<std::string> Errors() override;

  private:
    void ShowReturn();
    void ReadEntries();
    void ShowPreview();

    std::unique_ptr<Ui::frmReturnPayment> ui_;
    PaymentReturn returned_;
};

} // namespace leases::screens

#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "books/PostTransaction.h"
#include "books/screens/PartyBoxes.h"
#include "books/screens/ReferenceBoxes.h"
#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

namespace Ui {
class frmTransaction;
}

namespace books::screens {

/// The values that the transaction screen starts with. All but the first and the last two members
/// matter only for a new row.
struct TransactionSetup {
    std::int32_t idTransaction = 0;
    core::RecordKind fromType = core::kAccount;
    std::int32_t fromId = 0;
    core::RecordKind toType = core::kAccount;
    std::int32_t toId = 0;
    /// The To box starts empty, so that nobody is paid whom the user didn't choose.
    bool toIsToBeChosen = false;
    /// Text, "|", class: "Deposit Refund|2". May be empty.
    std::string category;
    platform::Currency amount;
    std::string description;
    References references;
    /// A transaction to copy, 0 for none.
    std::int32_t idTemplate = 0;
    std::int16_t transactionClass = 0;
    std::int16_t flags = 0;
};

/// The screen of one transaction.
class frmTransaction : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmTransaction(QWidget* parent = nullptr);
    ~frmTransaction() override;

    void Setup(const TransactionSetup& setup);
    /// Does the same, but returns only when the screen is closed; the caller owns the screen and
    /// can then read the result.
    void SetupModal(const TransactionSetup& setup);

    /// Returns false once a save has succeeded.
    bool Cancelled() const { return cancelled_; }
    /// Returns the amount at the last save.
    platform::Currency Amount() const { return amount_; }

  protected:
    void ShowRow(platform::Recordset& row) override;
    void ShowCaption() override;
    bool Agreed() override;
    void Store() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void FillNew(const TransactionSetup& setup);
    void ShowTemplate(std::int32_t idTemplate);
    void ShowFields(platform::Recordset& row);
    Transaction Entered() const;

    std::unique_ptr<Ui::frmTransaction> ui_;
    std::unique_ptr<PartyBoxes> from_;
    std::unique_ptr<PartyBoxes> to_;
    std::unique_ptr<ReferenceBoxes> references_;
    std::int16_t transactionClass_ = 0;
    std::int16_t flags_ = 0;
    Transaction shown_; ///< a stored one as the boxes showed it
    bool cancelled_ = true;
    platform::Currency amount_;
};

} // namespace books::screens

#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"
#include "records/AccountRules.h"

namespace Ui {
class frmAccount;
class frmAccountDetails;
} // namespace Ui

namespace books::screens {
class General_Ledger;
}

namespace records::screens {

class Contacts;

/// A party that money comes from or goes to, or the owner's own bank account.
class frmAccount : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmAccount(QWidget* parent = nullptr);
    ~frmAccount() override;

    /// Opens an account, or a new one of type `newType`.
    void Setup(std::int32_t id, std::string_view newType = {});

  protected:
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void StoreRest() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void MakePanels();
    void FillTypes();
    void ShowSecrets();
    AccountName Name() const;

    std::unique_ptr<Ui::frmAccount> ui_;
    std::unique_ptr<Ui::frmAccountDetails> details_;
    Contacts* contacts_ = nullptr;
    books::screens::General_Ledger* ledger_ = nullptr;
};

} // namespace records::screens

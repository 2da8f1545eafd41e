#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"
#include "leases/LeaseCommands.h"
#include "leases/LeaseEditor.h"

class QAction;

namespace Ui {
class frmLease;
class frmLeaseFees;
class frmLeaseMore;
class frmLeaseNotes;
class frmLeaseTerms;
} // namespace Ui

namespace leases::screens {

class Lease_Ledger;

/// A lease: its terms, its ledger, and the commands that change its status by hand.
class frmLease : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmLease(QWidget* parent = nullptr);
    ~frmLease() override;

    /// Opens a lease, after bringing it up to date, or a new one (0).
    void Setup(std::int32_t idLease);

  protected:
    void FillListsFor(platform::Recordset& row) override;
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    bool Agreed() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;
    void FollowOthers(const core::binding::Controls& touched) override;

  private:
    void MakeMenu();
    void MakePanels();
    void Connect();
    void FillLists();
    void FillPayors();
    void FillPayorsOf(core::RecordKind kind);
    void ShowProposal();
    void ShowSettles(bool settles);

    void DateActiveChanged();
    void UnitChosen();
    void ShowEnabled();
    void ShowAvailable();
    void ShowParts();
    void ShowBalances();
    void Run(LeaseCommand command);
    void Zoom(core::RecordKind kind);

    std::unique_ptr<Ui::frmLease> ui_;
    std::unique_ptr<Ui::frmLeaseTerms> terms_;
    std::unique_ptr<Ui::frmLeaseFees> fees_;
    std::unique_ptr<Ui::frmLeaseMore> more_;
    std::unique_ptr<Ui::frmLeaseNotes> notes_;
    Lease_Ledger* ucLL_ = nullptr;
    std::array<QAction*, 6> commands_{};
    /// New until a save has succeeded; one that failed midway doesn't count.
    LeaseAge age_ = LeaseAge::New;
    bool saved_ = false;
    /// Whether the lease settles charges from credit, as it was read.
    bool settles_ = false;
};

} // namespace leases::screens

#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"
#include "mortgages/MortgageAdjust.h"
#include "mortgages/MortgageEditor.h"
#include "mortgages/clsMortgage.h"

class QAction;

namespace Ui {
class frmMortgage;
class frmMortgageEscrow;
class frmMortgageGeneral;
class frmMortgageOrigination;
} // namespace Ui

namespace mortgages::screens {

class AmortPage;
class MtgLog;
class frmMortgageAdjust;

/// A mortgage: its parties and terms, its log, its schedule, and its commands. The origination of a
/// saved mortgage can't be changed.
class frmMortgage : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmMortgage(QWidget* parent = nullptr);
    ~frmMortgage() override;

    /// Opens a mortgage, or a new one (0) on the building.
    void Setup(std::int32_t idMortgage, std::int32_t parentBuilding);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void ShowCaption() override;
    void RowMissing() override { ShowTerms(); }
    std::vector<std::string> Errors() override;
    bool Agreed() override;
    void Store() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;
    void FollowOthers(const core::binding::Controls& touched) override;

  private:
    void MakePanels();
    void MakeMenu();
    QAction* AddAction(const char* name, const QString& text, const std::function<void()>& work);
    void Connect();
    void FillAccounts(core::RecordKind kind);

    void ShowTerms();
    void ShowPenaltyAndRates();
    void KeepShownTerms();
    bool IsChanged(const QWidget& control) const;
    void ReadTerms(clsMortgage& loan) const;
    void ReadSavedTerms(clsMortgage& loan) const;
    void TermsChanged();
    void Recalculate();
    void ShowLoan();
    void ShowCurrent();
    void UpdateOptions();
    void UpdateControls();

    void Run(MortgageCommand command);
    bool SaveFirst();
    void MoveDueDate(int periods);
    void OpenAdjustment(void (frmMortgageAdjust::*setup)(const clsMortgage& loan));
    void AdjustLoan(const Adjustment& adjustment);
    void MakeChangesOn(clsMortgage& loan) const;
    void ShowWorstCase();

    std::unique_ptr<Ui::frmMortgage> ui_;
    std::unique_ptr<Ui::frmMortgageGeneral> general_;
    std::unique_ptr<Ui::frmMortgageOrigination> origin_;
    std::unique_ptr<Ui::frmMortgageEscrow> escrow_;
    MtgLog* ucMtgLog_ = nullptr;
    AmortPage* amort_ = nullptr;
    std::array<QAction*, 3> commands_{};
    QAction* changeRate_ = nullptr;
    QAction* changeBalance_ = nullptr;
    QAction* changeTerms_ = nullptr;
    QAction* takeBack_ = nullptr;
    /// The loan as it was read, and with the unsaved changes: entered terms and adjustments.
    clsMortgage stored_;
    clsMortgage loan_;
    std::vector<Adjustment> adjustments_;
    /// The contents of the controls of the terms when the loan was read.
    std::map<const QWidget*, QString> shownTerms_;
    bool saved_ = false;
};

} // namespace mortgages::screens

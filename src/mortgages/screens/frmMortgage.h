#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"
#include "mortgages/MortgageEditor.h"
#include "mortgages/clsMortgage.h"

class QAction;

namespace documents::screens {
class FileObjects;
}

namespace Ui {
class frmMortgage;
class frmMortgageEscrow;
class frmMortgageGeneral;
class frmMortgageOrigination;
} // namespace Ui

namespace mortgages::screens {

class AmortPage;
class MtgLog;

/// A mortgage: its parties and terms, its log, its schedule, and what moves it by hand. The
/// origination of a saved one stays as it is.
class frmMortgage : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmMortgage(QWidget* parent = nullptr);
    ~frmMortgage() override;

    /// Opens a mortgage, or a new one (0) of the building.
    void Setup(std::int32_t idMortgage, std::int32_t parentBuilding);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void ShowCaption() override;
    void RowMissing() override { ShowTerms(); }
    std::vector<std::string> Errors() override;
    bool Agreed() override;
    void Store() override;
    void AfterSave() override;
    void Refresh(std::int16_t kind) override;

  private:
    void MakePanels();
    void MakeMenu();
    QAction* AddAction(const char* name, const QString& text, const std::function<void()>& work);
    void Connect();
    void FillAccounts(std::int16_t kind);

    void ShowTerms();
    void ShowPenaltyAndRates();
    void ReadTerms();
    void TermsChanged();
    void Reckon();
    void ShowLoan();
    void ShowCurrent();
    void UpdateOptions();
    void UpdateControls();

    void Run(MortgageCommand command);
    bool SaveFirst();
    void MoveDueDate(int periods);
    void OpenRateChange();
    void OpenBalanceChange();
    void FollowPayment();
    void KeepWhatMoved(platform::Recordset& row);

    std::unique_ptr<Ui::frmMortgage> ui_;
    std::unique_ptr<Ui::frmMortgageGeneral> general_;
    std::unique_ptr<Ui::frmMortgageOrigination> origin_;
    std::unique_ptr<Ui::frmMortgageEscrow> escrow_;
    MtgLog* ucMtgLog_ = nullptr;
    AmortPage* amort_ = nullptr;
    documents::screens::FileObjects* ucFOB_ = nullptr;
    std::array<QAction*, 3> commands_{};
    QAction* changeRate_ = nullptr;
    QAction* changeBalance_ = nullptr;
    clsMortgage loan_;
    /// The current period as it is stored; a payment moves it behind this screen's back.
    std::int16_t storedPeriod_ = 0;
    bool loanChanged_ = false; ///< by the user, since it was read
    bool saved_ = false;
    bool storing_ = false;
};

} // namespace mortgages::screens

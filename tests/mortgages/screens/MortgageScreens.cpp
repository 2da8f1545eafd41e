#include "mortgages/screens/MortgageScreens.h"

#include "core/EditRecord.h"
#include "mortgages/mMortgage.h"
#include "mortgages/screens/frmMortgage.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "mortgages/screens/frmMtgLog.h"

namespace tests {

namespace {

template <class Screen>
void RegisterChild(core::RecordKind kind) {
    core::RegisterOpener(kind, [](const core::EditRequest& request) {
        (new Screen)->Setup(request.id, request.parent1);
    });
}

} // namespace

MortgageScreenTest::MortgageScreenTest() {
    Run("DELETE * FROM Mortgage");
    Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (65, 'Ann''s Loans', "
        "'Mortgagee')");
    Run("INSERT INTO Mortgage (IdMortgage, IdBuilding, IdMortgagor, IdMortgagee, IdEscrow, "
        "IdLastPmt, Hide, AccountNumber, Description, OrigPV, OrigPer, OrigRate, FirstDue, "
        "NextDue, DateUpdated, CurrentPeriod, CurrentPV, CurrentPPmt, CurrentIPmt, EscrowAmount, "
        "PMI, LateFee, GracePeriod, Notes) VALUES (50, 10, 61, 65, 60, 60, False, 'A-1', "
        "'First loan', 120000, 360, 0.06, '01/01/2024', '01/01/2024', '02/15/2024', 1, 120000, "
        "119.4606, 600, 250, 0, 35, 15, '')");
    mortgages::UpdateMortgageById(kLoan, mortgages::RunMode::CatchUp);
    RegisterChild<mortgages::screens::frmMortgage>(core::kMortgage);
    RegisterChild<mortgages::screens::frmMtgLog>(core::kMortgageLog);
    core::RegisterTransactionOpener(
        core::TransactionEditor::MortgagePayment,
        [](const core::EditRequest& request, const core::TransactionPlace& place) {
            (new mortgages::screens::frmMortgagePayment)->Setup(request.id, place.idMortgage);
        });
}

MortgageScreenTest::~MortgageScreenTest() {
    core::RegisterOpener(core::kMortgage, nullptr);
    core::RegisterOpener(core::kMortgageLog, nullptr);
    core::RegisterTransactionOpener(core::TransactionEditor::MortgagePayment, nullptr);
}

std::string MortgageScreenTest::Loan(std::string_view field) {
    return Ask("SELECT " + std::string(field) + " FROM Mortgage WHERE IdMortgage = 50");
}

void MortgageScreenTest::Tick(const QWidget& form, int row, bool ticked) {
    Find<QTreeWidget>(form, "lvwCharges")
        .topLevelItem(row)
        ->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
}

} // namespace tests

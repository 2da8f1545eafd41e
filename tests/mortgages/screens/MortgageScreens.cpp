#include "mortgages/screens/MortgageScreens.h"

#include <QAction>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "mortgages/mMortgage.h"
#include "mortgages/screens/frmMortgage.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "mortgages/screens/frmMtgLog.h"
#include "platform/qt/Text.h"

namespace tests {

using platform::qt::FromScreen;

namespace {

template <class Screen>
void RegisterChild(std::int16_t kind) {
    core::RegisterOpener(kind, [](const core::EditRequest& request) {
        (new Screen)->Setup(request.id, request.parent1);
    });
}

void Append(Said& to, const Said& more) {
    to.insert(to.end(), more.begin(), more.end());
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

std::string MortgageScreenTest::Text(const QWidget& form, const char* box) {
    const QWidget& control = Find<QWidget>(form, box);
    for (const char* const property : {"currentText", "text"}) {
        const QVariant text = control.property(property);
        if (text.isValid()) return FromScreen(text.toString());
    }
    return "?";
}

Said MortgageScreenTest::Lines(const QWidget& form, const char* list) {
    const auto& tree = Find<QTreeWidget>(form, list);
    Said rows;
    for (int row = 0; row < tree.topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = tree.topLevelItem(row);
        std::string line = item->checkState(0) == Qt::Checked ? "x " : "";
        for (int column = 0; column < tree.columnCount(); ++column)
            line += (column > 0 ? "|" : "") + FromScreen(item->text(column));
        rows.push_back(line);
    }
    return rows;
}

void MortgageScreenTest::Tick(const QWidget& form, int row, bool ticked) {
    Find<QTreeWidget>(form, "lvwCharges")
        .topLevelItem(row)
        ->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
}

void MortgageScreenTest::Trigger(const QWidget& form, const char* item) {
    auto* const action = form.findChild<QAction*>(QLatin1String(item));
    if (!action) throw std::runtime_error(std::string("no item ") + item);
    if (!action->isEnabled()) throw std::runtime_error(std::string(item) + " can't be chosen");
    action->trigger();
}

Said MortgageScreenTest::Faults(QWidget& form, const std::string& picture) {
    Said faults = support::Portray(form, picture);
    Append(faults, support::MnemonicFaults(form));
    Append(faults, support::TabOrderFaults(form));
    Append(faults, support::NameFaults(form));
    return faults;
}

} // namespace tests

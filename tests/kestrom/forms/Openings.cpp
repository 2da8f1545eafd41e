#include "kestrom/forms/Openings.h"

#include <memory>

#include "exchange/screens/frmBackup.h"
#include "exchange/screens/frmRestore.h"
#include "leases/screens/frmRentPayment.h"
#include "leases/screens/frmRentSplit.h"
#include "leases/screens/frmReturnPayment.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "records/screens/frmDeposit.h"
#include "search/Finder.h"
#include "search/screens/frmSearch.h"

namespace tests {

namespace {

constexpr const char* kMenuItems[] = {
    "mnuConfig",         "mnuGeneralReports", "mnuPreferences", "mnuLeaseWizard",
    "mnuMortgageWizard", "mnuFinExport",      "mnuPort",        "mnuCheck",
    "mnuAutoEvents",     "mnuTransCategory",  "mnuDocMgmt",     "mnuHelpAbout",
    "mnuDBExplorer",     "mnuMileage",        "mnuLookAhead",   "mnuPosted"};

} // namespace

std::vector<Opening> EveryForm::Openings() {
    std::vector<Opening> openings;
    for (const Kind& kind : kKinds) {
        if (!core::HasEditor(kind.kind)) continue;
        openings.push_back({kind.table, [&kind] { core::EditRecord(kind.kind, SomeId(kind)); }});
        openings.push_back(
            {std::string("new ") + kind.table, [&kind] { core::EditRecord(kind.kind, 0); }});
    }
    const auto commands = kestrom::MenuCommands();
    for (const char* const item : kMenuItems) {
        openings.push_back(
            {item, [commands, item] { commands.Run(QString::fromLatin1(item), {}); }});
    }
    openings.push_back({"frmDeposit", [] {
                            records::screens::OpenDeposit(Id("SELECT Max(IdDeposit) FROM Deposit"),
                                                          records::DepositScope::All, {});
                        }});
    openings.push_back({"frmTransaction", [] {
                            core::EditRecord(core::kTransaction,
                                             Id("SELECT Max(IdTransaction) FROM Transactions WHERE "
                                                "Nz(IdLease, 0) = 0 AND Nz(IdMortgage, 0) = 0"));
                        }});
    openings.push_back({"frmRentPayment", [] {
                            (new leases::screens::frmRentPayment)
                                ->Setup(0, Id("SELECT Max(IdLease) FROM Lease"),
                                        core::TransactionClass::Rent, leases::LeaseUpdate::Yes);
                        }});
    openings.push_back({"frmReturnPayment", [] {
                            (new leases::screens::frmReturnPayment)
                                ->Setup(Id("SELECT Max(IdTransaction) FROM Transactions WHERE "
                                           "Class = 1 AND Amount > 0"));
                        }});
    openings.push_back({"frmMortgagePayment", [] {
                            (new mortgages::screens::frmMortgagePayment)
                                ->Setup(0, Id("SELECT Max(IdMortgage) FROM Mortgage"));
                        }});
    openings.push_back(
        {"frmRentSplit", [] {
             (new leases::screens::frmRentSplit)->Setup(Id("SELECT Max(IdRentLog) FROM RentLog"));
         }});
    openings.push_back({"frmBackup", [] { (new exchange::screens::frmBackup)->Setup(); }});
    openings.push_back({"frmRestore", [] { (new exchange::screens::frmRestore)->Setup(); }});
    openings.push_back({"frmSearch", [] {
                            static std::unique_ptr<search::Finder> finder;
                            finder = std::make_unique<search::Finder>(core::App().Connection);
                            (new search::screens::frmSearch(*finder, {}))->Setup();
                        }});
    return openings;
}

} // namespace tests

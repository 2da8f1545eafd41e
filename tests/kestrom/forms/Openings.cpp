#include "kestrom/forms/Openings.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>

#include "books/screens/frmDepreciation.h"
#include "books/screens/frmMileageWiz.h"
#include "exchange/screens/frmBackup.h"
#include "exchange/screens/frmRestore.h"
#include "leases/screens/frmRentPayment.h"
#include "leases/screens/frmRentSplit.h"
#include "leases/screens/frmReturnPayment.h"
#include "mortgages/screens/frmMortgageAdjust.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "records/screens/frmDeposit.h"
#include "search/Finder.h"
#include "search/screens/frmSearch.h"
#include "shell/screens/frmMoveUnit.h"
#include "sumdesk/frmSumDesk.h"

namespace tests {

namespace {

constexpr const char* kMenuItems[] = {
    "mnuConfig",         "mnuGeneralReports", "mnuPreferences", "mnuLeaseWizard",
    "mnuMortgageWizard", "mnuFinExport",      "mnuPort",        "mnuCheck",
    "mnuAutoEvents",     "mnuTransCategory",  "mnuDocMgmt",     "mnuHelpAbout",
    "mnuDBExplorer",     "mnuMileage",        "mnuLookAhead",   "mnuPosted"};

mortgages::clsMortgage SomeLoan() {
    mortgages::clsMortgage loan;
    double periods = 360;
    double payment = 0;
    loan.CreateMtg("01/01/2025", 100000, periods, 0.06, payment, false, true);
    loan.SetXPri(2, 500);
    loan.ReCalc();
    return loan;
}

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
    using Adjust = mortgages::screens::frmMortgageAdjust;
    for (const auto frame :
         {&Adjust::SetupInt, &Adjust::SetupBalance, &Adjust::SetupTerms, &Adjust::SetupTakeBack}) {
        openings.push_back({"frmMortgageAdjust", [frame] { (new Adjust->*frame)(SomeLoan()); }});
    }
    openings.push_back(
        {"new frmDeposit",
         [] { (new records::screens::frmDeposit)->Setup(0, records::DepositScope::Global, {}); }});
    openings.push_back({"frmMileageWiz", [] { (new books::screens::frmMileageWiz)->Setup(); }});
    openings.push_back({"frmDepreciation", [] {
                            (new books::screens::frmDepreciation)
                                ->Setup(8, "12 Elm St", 100000, "01/01/2020", "MACRS - 27.5 Year",
                                        27.5);
                        }});
    openings.push_back({"frmMoveUnit", [] {
                            (new shell::screens::frmMoveUnit)
                                ->Setup(QStringLiteral("12 Elm St A"), [](std::int32_t) {});
                        }});
    openings.push_back({"frmSumDesk", [] { (new sumdesk::frmSumDesk)->Setup(); }});
    openings.push_back({"frmSearch", [] {
                            static std::unique_ptr<search::Finder> finder;
                            finder = std::make_unique<search::Finder>(core::App().Connection);
                            (new search::screens::frmSearch(*finder, {}))->Setup();
                        }});
    return openings;
}

std::set<std::string> EveryForm::FormsOfTheProgram() {
    // Dialogs that wait for their answer, and the window itself, have tests of their own.
    static const std::regex form(
        R"(class (frm\w+) : public (?!QDialog|QWidget|QMainWindow)[\w:]+ \{)");
    std::set<std::string> names;
    for (const auto& file : std::filesystem::recursive_directory_iterator(VESTREL_SOURCES)) {
        if (file.path().extension() != ".h") continue;
        std::ifstream stream(file.path());
        const std::string text((std::istreambuf_iterator(stream)), {});
        std::smatch found;
        if (std::regex_search(text, found, form)) names.insert(found[1]);
    }
    names.erase("frmWizard");                               // the base of the wizards
    for (const char* name : {"frmHelp", "frmReportViewer"}) // tested where their files are
        names.erase(name);
    return names;
}

} // namespace tests

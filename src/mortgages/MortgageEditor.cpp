#include "mortgages/MortgageEditor.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/mMortgage.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Text.h"

namespace mortgages {

using platform::Icon;
using platform::TheDialogs;

namespace {

constexpr std::string_view kVerifySave =
    "Make sure all origination values are correct before saving this mortgage. Once these\n"
    "entries are saved they cannot be changed. You can view the amortization before saving\n"
    "to make sure the values match up with what you are expecting.\n\n"
    "Do you want to continue and save?";

constexpr std::string_view kReprocess =
    "Reprocessing will re-post all charges currently due. You may have to remove \n"
    "duplicate entries if some of these charges have already been posted. Please \n"
    "consult the help files for more information.\n\nAre you sure you want to continue?";

constexpr std::string_view kRollForward =
    "Rolling forward will post the charges due for the next due date. This should be used \n"
    "when payments have been made in advance. Please consult the help files for more "
    "information.\n\nAre you sure you want to continue?";

constexpr std::string_view kPayoff =
    "Prior to closing a mortgage, please make sure all outstanding payments have been made and "
    "there\n"
    "are no charges listed on the Payments tab. Any items remaining there at this point will be "
    "removed.\n"
    "This process will post a final charge for the outstanding balance of the mortgage. Once this "
    "has\n"
    "been paid the mortgage will show a zero balance and will show as closed.\n"
    "Press Yes to continue or No to cancel.";

constexpr std::string_view kPayoffPosted =
    "A payoff charge has been posted and all other charges have been removed. To complete the\n"
    "you need to make the final payment. Once this has been completed the mortgage status will\n"
    "change to closed and no more charges will be posted.";

void PayOff(std::int32_t idMortgage) {
    if (PostPayoff(idMortgage) == PayoffResult::Posted) {
        TheDialogs().ShowMessage("Payoff Posted", kPayoffPosted, Icon::Information);
    } else {
        TheDialogs().ShowMessage(
            "Error!", "Error: Mortgage information could not be retrieved.\n\nPress OK to continue",
            Icon::Critical);
    }
}

} // namespace

std::vector<std::string> MortgageErrors(std::string_view accountNumber) {
    if (!accountNumber.empty()) return {};
    return {"An account number entered."};
}

bool AskToSaveNew() {
    return TheDialogs().AskYesNo("Verify Save", kVerifySave, Icon::Question);
}

void SaveMortgage(platform::Recordset& row, const clsMortgage& mortgage, std::string_view lender) {
    platform::UnitOfWork unit(core::App().Connection);
    StoreLoan(mortgage, row);
    if (row["Description"].IsBlank()) {
        row["Description"].Set(std::string(lender) + " " + TextOf(row["AccountNumber"]));
    }
    UpdateMortgage(row, RunMode::CatchUp);
    unit.Commit();
}

bool AskWhether(MortgageCommand command) {
    switch (command) {
        case MortgageCommand::Reprocess:
            return TheDialogs().AskYesNo("Confirm Reprocess", kReprocess, Icon::Question);
        case MortgageCommand::RollForward:
            return TheDialogs().AskYesNo("Confirm Roll Forward", kRollForward, Icon::Question);
        case MortgageCommand::Payoff:
            break;
    }
    return TheDialogs().AskYesNo("Close Mortgage?", kPayoff, Icon::Question);
}

void RunCommand(MortgageCommand command, std::int32_t idMortgage) {
    if (command == MortgageCommand::Payoff) return PayOff(idMortgage);
    UpdateMortgageById(idMortgage, command == MortgageCommand::Reprocess ? RunMode::Reprocess
                                                                         : RunMode::RollForward);
    core::NotifyAll(core::kMortgageLog, core::kRecordsChanged, 0);
    core::NotifyAll(core::kMortgage, core::kRecordsChanged, 0);
}

bool AskToMoveDueDate(bool forward) {
    return TheDialogs().AskYesNo(
        "Confirm Action", forward ? "Increment Due Date?" : "Decrement Due Date?", Icon::Question);
}

} // namespace mortgages

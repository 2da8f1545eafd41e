#include "leases/LeaseCommands.h"

#include "core/Codes.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/RentCodes.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Date;

namespace {

struct Question {
    std::string_view title;
    std::string_view text;
};

Question QuestionOf(LeaseCommand command) {
    switch (command) {
        case LeaseCommand::GiveNotice:
            return {"Give Notice?",
                    "Giving notice to this lease will change some options avaliable\n"
                    "and allow you to set a vacating date for the tenant.\n"
                    "Do you want to continue?"};
        case LeaseCommand::BreakLease:
            return {"Break Lease?",
                    "Breaking lease changes it to inactive and gives options for\n"
                    "handling escrowed monies such as deposits and last months rent\n"
                    "that were paid in advance. Use this option if tenant is\n"
                    "vacating without giving notice.\n"
                    "Do you want to continue?"};
        case LeaseCommand::CancelNotice:
            return {"Cancel Notice?",
                    "Cancelling notice will return this lease to the state it\n"
                    "would be in according to the current settings.\n"
                    "Do you want to continue?"};
        case LeaseCommand::RenewLease:
            return {"Renew Lease?",
                    "Renewing lease will set it in correct state according to current\n"
                    "settings. Be sure date renewed is set correctly to ensure the.\n"
                    "new expiration and warnings work correctly.\n"
                    "Do you want to continue?"};
        case LeaseCommand::Reprocess:
            return {"Confirm Reprocess",
                    "Reprocessing will re-post all charges currently due. You may have to remove \n"
                    "duplicate entries if some of these charges have already been posted. Please \n"
                    "consult the help files for more information.\n"
                    "Are you sure you want to continue?"};
        case LeaseCommand::RollForward:
            break;
    }
    return {
        "Confirm Roll Forward",
        "Rolling forward will post the charges due for the next due date. This should be used \n"
        "when payments have been made in advance. Please consult the help files for more "
        "information.\n"
        "Are you sure you want to continue?"};
}

} // namespace

bool AskWhether(LeaseCommand command) {
    const Question question = QuestionOf(command);
    return platform::TheDialogs().AskYesNo(question.title, question.text, platform::Icon::Question);
}

void RunCommand(LeaseCommand command, std::int32_t idLease, int noticeDays) {
    const Date today = platform::Today();
    switch (command) {
        case LeaseCommand::GiveNotice:
            return ChangeStatus(idLease, core::kLeaseNotice,
                                DateAdd(platform::Interval::Day, noticeDays, today));
        case LeaseCommand::BreakLease:
            return ChangeStatus(idLease, core::kLeaseBroken, today);
        case LeaseCommand::CancelNotice:
        case LeaseCommand::RenewLease:
            return ChangeStatus(idLease, core::kLeasePending, Date());
        case LeaseCommand::Reprocess:
            UpdateLeaseById(idLease, WalkMode::Reprocess);
            return;
        case LeaseCommand::RollForward:
            UpdateLeaseById(idLease, WalkMode::RollForward);
            return;
    }
}

void ChangeStatus(std::int32_t idLease, std::string_view newStatus, platform::Date vacating) {
    platform::UnitOfWork unit(core::App().Connection);
    platform::Recordset row = core::Write("SELECT * FROM Lease WHERE IdLease = ?", {idLease});
    if (row.Eof()) return;
    row["Status"].Set(newStatus);
    row["DateVacating"].Set(vacating.ToText());
    SetLeaseStatus(row, platform::Today(), StatusChange::Force);
    SetRentStatus(row);
    row.Update();
    core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
    unit.Commit();
}

} // namespace leases

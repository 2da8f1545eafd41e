#include "shell/MoveUnit.h"

#include <string_view>

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Errors.h"

namespace shell {

namespace {

constexpr std::string_view kQuestion =
    "You are about to move a unit from one building to a different one.\n"
    "This will also cause all items and transactions related to that unit to be moved\n"
    "to the new building. If a building no longer contains any units it will not be\n"
    "visible on the main Vestrel screen, but it will still appear in reports and\n"
    "on the Database Explorer screen. See the help file for more information.\n"
    "\n"
    "Are you sure you want to continue?";

bool Agreed() {
    return !core::Preferences().ConfirmMoves ||
           platform::TheDialogs().AskYesNo("Verify Move", kQuestion, platform::Icon::Question);
}

void MarkAsMulti(platform::Connection& books, std::int32_t idBuilding) {
    const auto units =
        books.Scalar("SELECT Count(*) AS Result FROM Unit WHERE IdBuilding = ?", {idBuilding});
    if (!units || units->AsLong() <= 1) return;
    core::Execute("UPDATE Building SET Multi = True WHERE IdBuilding = ?", {idBuilding}, books);
}

/// Writes the unit and everything that moves with it, all or nothing.
bool Write(std::int32_t idUnit, std::int32_t idBuilding) {
    platform::Connection& books = core::App().Connection;
    platform::UnitOfWork unit(books);
    if (!core::RecordExists(core::kBuilding, idBuilding)) return false;
    if (core::Execute("UPDATE Unit SET IdBuilding = ? WHERE IdUnit = ?", {idBuilding, idUnit},
                      books) == 0)
        return false;
    core::Execute("UPDATE AutoEvent SET IdBuilding = ? WHERE IdUnit = ?", {idBuilding, idUnit},
                  books);
    core::Execute("UPDATE Transactions SET IdBuilding = ? WHERE IdUnit = ?", {idBuilding, idUnit},
                  books);
    try {
        platform::UnitOfWork mark(books);
        MarkAsMulti(books, idBuilding);
        mark.Commit();
    } catch (const platform::Error&) {
        // The move is kept even if this fails.
    }
    unit.Commit();
    return true;
}

} // namespace

bool MoveUnit(std::int32_t idUnit, std::int32_t idBuilding) {
    if (!Agreed()) return false;
    if (!Write(idUnit, idBuilding)) {
        platform::TheDialogs().ShowMessage("Move Unit",
                                           "The unit or the building was deleted in the meantime.",
                                           platform::Icon::Information);
        return false;
    }
    for (const core::RecordKind kind : {core::kUnit, core::kAutoEvent, core::kTransaction})
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    return true;
}

} // namespace shell

#include "removal/DeleteRecord.h"

#include <string_view>
#include <utility>
#include <vector>

#include "core/Lookups.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "removal/RecordTitle.h"
#include "removal/Removal.h"
#include "removal/RemovalQuestion.h"
#include "removal/RemovalTable.h"

namespace removal {

namespace {

/// Broadcast once after all children of a kind were deleted, besides each one's own broadcast.
constexpr std::int16_t kChildrenRemoved = 2;

std::vector<std::int32_t> IdsOf(std::string_view sql, std::int32_t id) {
    platform::Recordset rows = core::Read(sql, {id});
    std::vector<std::int32_t> children;
    for (; !rows.Eof(); rows.MoveNext()) {
        children.push_back(rows[0].AsLong());
    }
    return children;
}

/// Removes the records that can't exist without this one, after the ones that can't exist without
/// them.
void RemoveChildren(Removal& removal, core::RecordKind kind, std::int32_t id) {
    const KindRemoval* const entry = RemovalOf(kind);
    if (entry == nullptr) return;
    for (const Children& children : entry->children) {
        for (const std::int32_t child : IdsOf(children.select, id)) {
            RemoveChildren(removal, children.kind, child);
            removal.Remove(children.kind, child);
        }
        removal.Note(children.kind, kChildrenRemoved);
    }
}

/// Returns the building that can't exist without this unit; 0 if it has others.
std::int32_t BuildingOfLastUnit(std::int32_t idUnit) {
    const std::int32_t idBuilding = core::GetUnitBuilding(idUnit);
    if (idBuilding == 0) return 0;
    const auto others = core::LookUp(
        "SELECT Count(*) AS [Result] FROM Unit "
        "WHERE (IdBuilding = ?) AND (IdUnit <> ?) ",
        {idBuilding, idUnit});
    return !others || others->AsLong() == 0 ? idBuilding : 0;
}

void RemoveBuildingOfLastUnit(Removal& removal, std::int32_t idUnit) {
    const std::int32_t idBuilding = BuildingOfLastUnit(idUnit);
    if (idBuilding != 0) removal.Remove(core::kBuilding, idBuilding);
}

BeforeBuilding& StepBeforeBuilding() {
    static BeforeBuilding step;
    return step;
}

bool MayGo(core::RecordKind kind, std::int32_t id) {
    const bool isBuilding =
        kind == core::kBuilding || (kind == core::kUnit && BuildingOfLastUnit(id) != 0);
    return !isBuilding || !StepBeforeBuilding() || StepBeforeBuilding()();
}

bool Agreed(core::RecordKind kind, std::int32_t id) {
    const auto question = QuestionBefore(kind, id);
    if (!question) return true;
    return AgreedToDelete(question->title, question->text, platform::Value(RecordTitle(kind, id)));
}

} // namespace

void SetBeforeBuilding(BeforeBuilding step) {
    StepBeforeBuilding() = std::move(step);
}

bool AgreedToDelete(std::string_view title, std::string_view question,
                    const platform::Value& name) {
    std::string text(question);
    if (!name.IsNull() && !name.AsText().empty()) text += "\n\n" + name.AsText();
    return platform::TheDialogs().AskYesNo(title, text, platform::Icon::Question);
}

bool AgreedToDelete(core::RecordKind kind, std::int32_t id) {
    return !core::Preferences().ConfirmDelete || Agreed(kind, id);
}

bool DeleteRecord(core::RecordKind kind, std::int32_t id, Confirm confirm, Tell tell) {
    if (id == 0) return false;
    if (confirm == Confirm::Ask && !AgreedToDelete(kind, id)) return false;
    // Asked before the work begins, so that no unit of work is open while the user decides.
    const Charges charges = AskAboutCharges(kind, id);
    if (!MayGo(kind, id)) return false;
    RunRemoval(tell, [&](Removal& removal) {
        RemoveChildren(removal, kind, id);
        if (kind == core::kUnit) RemoveBuildingOfLastUnit(removal, id);
        removal.Remove(kind, id, charges);
    });
    return true;
}

void RemoveRecord(core::RecordKind kind, std::int32_t id, Tell tell) {
    if (id == 0) return;
    const Charges charges = AskAboutCharges(kind, id);
    RunRemoval(tell, [&](Removal& removal) { removal.Remove(kind, id, charges); });
}

} // namespace removal

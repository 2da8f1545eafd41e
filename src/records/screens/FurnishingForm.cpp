#include "records/screens/FurnishingForm.h"

#include "core/KindTable.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ActionBar.h"
#include "core/forms/TabPages.h"
#include "platform/qt/Text.h"
#include "records/screens/PickFields.h"

namespace records::screens {

namespace {

core::forms::RecordPlace PlaceOf(core::RecordKind kind) {
    const core::KindInfo& info = core::InfoOf(kind);
    return {kind, std::string(info.table), std::string(info.key)};
}

} // namespace

FurnishingForm::FurnishingForm(core::RecordKind kind, NoUnit noUnit, QWidget* parent)
    : RecordForm(PlaceOf(kind), parent), kind_(kind), noUnit_(noUnit) {}

void FurnishingForm::WireFurnishing(QComboBox& unit, core::forms::ActionBar& buttons) {
    unit_ = &unit;
    Wire();
    core::forms::PutLastInTabOrder(*this, buttons);
}

void FurnishingForm::Setup(std::int32_t id, std::int32_t parentUnit) {
    OpenRecord(id, [this, parentUnit] {
        LoadPickFields(*this);
        FillLists();
        FillUnits(parentUnit);
    });
}

void FurnishingForm::FillUnits(std::int32_t selectedId) {
    core::binding::FillList(core::kUnit, *unit_,
                            {.selectedId = selectedId, .addNone = noUnit_ == NoUnit::Offered});
}

void FurnishingForm::ShowCaption() {
    const QString kind = platform::qt::ToScreen(core::RecordKindName(kind_));
    setWindowTitle(Id() == 0 ? tr("Adding New %1").arg(kind) : tr("%1: %2").arg(kind, Name()));
}

void FurnishingForm::AfterSave() {
    SavePickFields(*this);
}

void FurnishingForm::Refresh(core::RecordKind kind) {
    if (kind == core::kUnit || kind == core::kBuilding) FillUnits(0);
}

} // namespace records::screens

#include "books/screens/ReferenceBoxes.h"

#include <QComboBox>

#include "core/Lookups.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"

namespace books::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;
using core::forms::Guarded;

ReferenceBoxes::ReferenceBoxes(const Boxes& boxes, QObject* parent)
    : QObject(parent),
      boxes_(boxes),
      all_({{{boxes.lease, core::kLease, &References::idLease},
             {boxes.tenant, core::kTenant, &References::idTenant},
             {boxes.building, core::kBuilding, &References::idBuilding},
             {boxes.unit, core::kUnit, &References::idUnit},
             {boxes.mortgage, core::kMortgage, &References::idMortgage},
             {boxes.workOrder, core::kWorkOrder, &References::idWorkOrder}}}) {
    connect(boxes_.lease, &QComboBox::currentIndexChanged, this, &ReferenceBoxes::LeaseChosen);
    connect(boxes_.unit, &QComboBox::currentIndexChanged, this, &ReferenceBoxes::UnitChosen);
    connect(boxes_.mortgage, &QComboBox::currentIndexChanged, this,
            &ReferenceBoxes::MortgageChosen);
}

void ReferenceBoxes::Fill(const References& chosen) {
    for (const Box& box : all_) {
        // If a list can't be read, the others are filled all the same.
        Guarded([&] {
            FillList(box.kind, *box.combo, {.selectedId = chosen.*box.id, .addNone = true});
        });
    }
    ShowAvailable();
}

void ReferenceBoxes::Refresh(core::RecordKind kind) {
    for (const Box& box : all_) {
        if (box.kind == kind) FillList(kind, *box.combo, {.addNone = true});
    }
    ShowAvailable();
}

void ReferenceBoxes::ShowAvailable() {
    boxes_.building->setEnabled(GetSelectedId(*boxes_.unit) == 0);
}

References ReferenceBoxes::Chosen() const {
    References chosen;
    for (const Box& box : all_)
        chosen.*box.id = GetSelectedId(*box.combo);
    return chosen;
}

void ReferenceBoxes::LeaseChosen() {
    const std::int32_t idLease = GetSelectedId(*boxes_.lease);
    std::int32_t idUnit = 0;
    std::int32_t idTenant = 0;
    if (idLease == 0 || !core::GetLeaseParties(idLease, idUnit, idTenant)) return;
    Select(*boxes_.tenant, idTenant);
    Select(*boxes_.unit, idUnit);
    UnitChosen();
}

void ReferenceBoxes::UnitChosen() {
    const std::int32_t idUnit = GetSelectedId(*boxes_.unit);
    if (idUnit != 0) Select(*boxes_.building, core::GetUnitBuilding(idUnit));
    ShowAvailable();
}

void ReferenceBoxes::MortgageChosen() {
    const std::int32_t idMortgage = GetSelectedId(*boxes_.mortgage);
    if (idMortgage == 0 || GetSelectedId(*boxes_.unit) != 0) return;
    Select(*boxes_.building, core::GetMortgageBuilding(idMortgage));
}

/// Selects a record; selects nothing if it isn't offered.
void ReferenceBoxes::Select(QComboBox& combo, std::int32_t id) {
    core::binding::SelectById(combo, id, {.selectFirst = true});
}

} // namespace books::screens

// The units on the building's screen: choosing one, adding one, and the lists that belong to it.

#include <QApplication>

#include "books/screens/General_Ledger.h"
#include "core/Lookups.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/OpenForms.h"
#include "platform/qt/Text.h"
#include "records/BuildingRules.h"
#include "records/screens/Panels.h"
#include "records/screens/frmBuilding.h"
#include "ui_frmBuilding.h"
#include "ui_frmBuildingFinancial.h"
#include "ui_frmBuildingPlace.h"
#include "ui_frmBuildingUnit.h"

namespace records::screens {

using core::forms::Guarded;

namespace {

/// Returns the form that shows the building; null if there is none.
frmBuilding* FindOpen(std::int32_t idBuilding) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const form = qobject_cast<frmBuilding*>(window);
        if (form && form->isVisible() && idBuilding != 0 && form->Id() == idBuilding) return form;
    }
    return nullptr;
}

} // namespace

void frmBuilding::MakePanels() {
    ledger_ = PlacePanel(new books::screens::General_Ledger(this), *ui_->tabLedger, "ucLedger");
}

void frmBuilding::ShowPanels() {
    const std::int32_t unit = Id() == 0 ? 0 : idUnit_;
    place_->ucBuildingLists->Load(core::kBuilding, Id());
    unit_->ucUnitLists->Load(core::kUnit, unit);
    financial_->ucDeposits->Load({Id(), unit});
    ledger_->SetParty(core::kUnit, unit, Id());
}

void frmBuilding::FillUnits() {
    ui_->lblSelUnit->setVisible(multi_);
    ui_->cboSelUnit->setVisible(multi_);
    if (!multi_) return;
    core::ChoiceList list;
    for (const core::Choice& unit : UnitsOf(Id()))
        list.Add(unit.text, unit.id);
    core::SelectById(list, idUnit_);
    core::binding::ShowInCombo(list, *ui_->cboSelUnit);
}

void frmBuilding::UnitChosen() {
    if (SelectUnit(core::binding::GetSelectedId(*ui_->cboSelUnit))) return;
    core::binding::SelectById(*ui_->cboSelUnit, idUnit_);
}

/// Saves the changes; returns false if the save is refused or fails.
bool frmBuilding::SaveChanges() {
    if (Dirty()) Apply();
    return !Dirty();
}

void frmBuilding::Reload() {
    const LoadingGuard loading(*this);
    Guarded([this] { Load(); });
}

bool frmBuilding::SelectUnit(std::int32_t idUnit) {
    if (idUnit == 0 || idUnit == idUnit_) return true;
    if (!SaveChanges()) return false;
    idUnit_ = idUnit;
    Reload();
    return true;
}

void frmBuilding::AddUnit() {
    if (IsBusy()) return;
    if (!multi_) return Convert();
    TellUnitNumberMissing(platform::qt::FromScreen(unit_->txtUnit->text()));
    if (!SaveChanges()) return;
    Perform([this] {
        idUnit_ = MakeNewUnit(Id());
        Reload();
        ui_->tabs->setCurrentWidget(ui_->tabUnit);
        unit_->txtUnit->setFocus();
        unit_->txtUnit->selectAll();
    });
}

void frmBuilding::Convert() {
    if (!AskToConvert()) return;
    MarkDirty(); // so that it shows whether the save went through
    makeMulti_ = true;
    Apply();
    makeMulti_ = false;
}

void OpenBuilding(const core::EditRequest& request) {
    const bool isUnit = request.kind == core::kUnit;
    const std::int32_t idUnit = isUnit ? request.id : 0;
    const std::int32_t idBuilding = isUnit ? core::GetUnitBuilding(idUnit) : request.id;
    if (auto* const open = FindOpen(idBuilding)) {
        if (open->SelectUnit(idUnit)) core::forms::BringToFront(idBuilding);
        return;
    }
    (new frmBuilding)->Setup(isUnit ? 0 : idBuilding, idUnit, isUnit ? request.parent2 : 0);
}

} // namespace records::screens

#include "records/screens/frmDeposit.h"

#include <QRadioButton>

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/OpenForms.h"
#include "platform/qt/Text.h"
#include "ui_frmDeposit.h"

namespace records::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;

frmDeposit::frmDeposit(QWidget* parent)
    : RecordForm({core::kDeposit, "Deposit", "IdDeposit"}, parent, core::FormSizing::Fixed),
      ui_(std::make_unique<Ui::frmDeposit>()) {
    ui_->setupUi(this);
    Wire();
    for (QRadioButton* const option : {ui_->optGlobal, ui_->optBuilding, ui_->optUnit})
        connect(option, &QRadioButton::toggled, this, &frmDeposit::OfferPlaces);
}

frmDeposit::~frmDeposit() = default;

void frmDeposit::Setup(std::int32_t id, DepositScope scope, const DepositPlace& place) {
    OpenRecord(
        id,
        [&] {
            FillList(core::kBuilding, *ui_->cboBuilding,
                     {.selectedId = place.idBuilding, .addNone = true});
            FillList(core::kUnit, *ui_->cboUnit, {.selectedId = place.idUnit, .addNone = true});
        },
        [this, scope] {
            ui_->txtDescription->setText(tr("New Deposit"));
            ui_->txtDescription->selectAll(); // to be typed over
            ui_->txtAmount->setText(QStringLiteral("0.00"));
            ShowScope(scope);
        });
}

void frmDeposit::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    ShowScope(ScopeOf(GetSelectedId(*ui_->cboBuilding), GetSelectedId(*ui_->cboUnit)));
}

void frmDeposit::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Deposit")
                             : tr("Deposit: %1").arg(ui_->txtDescription->text()));
}

std::vector<std::string> frmDeposit::Errors() {
    return DepositErrors({Scope(), GetSelectedId(*ui_->cboBuilding), GetSelectedId(*ui_->cboUnit),
                          platform::qt::FromScreen(ui_->txtDescription->text())});
}

void frmDeposit::Refresh(core::RecordKind kind) {
    if (kind == core::kBuilding) FillList(core::kBuilding, *ui_->cboBuilding, {.addNone = true});
    if (kind == core::kBuilding || kind == core::kUnit) {
        FillList(core::kUnit, *ui_->cboUnit, {.addNone = true});
    }
}

void frmDeposit::ShowScope(DepositScope scope) {
    ui_->optBuilding->setChecked(scope == DepositScope::Building);
    ui_->optUnit->setChecked(scope == DepositScope::Unit);
    ui_->optGlobal->setChecked(scope == DepositScope::All || scope == DepositScope::Global);
    OfferPlaces();
}

/// A template has one scope, so the boxes of the other scopes name no building and no unit.
void frmDeposit::OfferPlaces() {
    const DepositScope scope = Scope();
    ui_->cboBuilding->setEnabled(scope == DepositScope::Building);
    ui_->cboUnit->setEnabled(scope == DepositScope::Unit);
    if (scope != DepositScope::Building) core::binding::SelectById(*ui_->cboBuilding, 0);
    if (scope != DepositScope::Unit) core::binding::SelectById(*ui_->cboUnit, 0);
}

DepositScope frmDeposit::Scope() const {
    if (ui_->optUnit->isChecked()) return DepositScope::Unit;
    if (ui_->optBuilding->isChecked()) return DepositScope::Building;
    return DepositScope::Global;
}

void OpenDeposit(std::int32_t id, DepositScope scope, const DepositPlace& place) {
    if (core::forms::BringToFront(id)) return;
    (new frmDeposit)->Setup(id, scope, place);
}

} // namespace records::screens

#include "mortgages/screens/frmMtgLog.h"

#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "mortgages/ChargeEditor.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmMtgLog.h"

namespace mortgages::screens {

using core::binding::SelectByText;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmMtgLog::frmMtgLog(QWidget* parent) : EntryForm(parent), ui_(std::make_unique<Ui::frmMtgLog>()) {
    ui_->setupUi(this);
    setWindowTitle(QStringLiteral(" Editing Mortgage Charge"));
    for (const std::string_view category : kChargeCategories)
        ui_->cboCategory->addItem(ToScreen(category));
    Wire(tr("&OK"), tr("Save the charge and close (Enter)"), "OK");
    for (QLineEdit* const box : std::initializer_list<QLineEdit*>{
             ui_->txtPrincipal, ui_->txtPayDown, ui_->txtInterest, ui_->txtOther})
        connect(box, &QLineEdit::textChanged, this, &frmMtgLog::ShowTotal);
}

frmMtgLog::~frmMtgLog() = default;

void frmMtgLog::Setup(std::int32_t idMortgageLog, std::int32_t idMortgage) {
    id_ = idMortgageLog;
    const bool found = core::forms::Guarded([&] {
        if (id_ == 0) {
            entry_ = NewCharge(idMortgage);
        } else if (!ReadCharge(id_, entry_)) {
            id_ = 0;
            entry_ = NewCharge(idMortgage);
        }
    });
    if (!found) {
        deleteLater();
        return;
    }
    core::binding::SetTag(*this, id_ == 0 ? "" : std::to_string(id_));
    Begin([this] { ShowEntry(); });
}

void frmMtgLog::ShowEntry() {
    ui_->dpDatePosted->SetDay(entry_.datePosted);
    SelectByText(*ui_->cboCategory, entry_.category, {.setText = true});
    ui_->txtPeriod->setText(QString::number(entry_.period));
    ui_->txtPrincipal->SetAmount(entry_.principal);
    ui_->txtPayDown->SetAmount(entry_.payDown);
    ui_->txtInterest->SetAmount(entry_.interest);
    ui_->txtOther->SetAmount(entry_.other);
    ui_->txtDescription->setText(ToScreen(entry_.description));
    for (QWidget* const split : std::initializer_list<QWidget*>{ui_->cboCategory, ui_->txtPrincipal,
                                                                ui_->txtPayDown, ui_->txtInterest})
        split->setEnabled(!KeepsSplit(entry_));
    ui_->txtPeriod->setEnabled(!IsExtraPrincipal(entry_));
    ShowTotal();
}

MortgageLogEntry frmMtgLog::Entered() const {
    MortgageLogEntry entry = entry_;
    entry.datePosted = ui_->dpDatePosted->Day().value_or(platform::Date());
    entry.period = platform::StrToInt16(FromScreen(ui_->txtPeriod->text()));
    entry.description = FromScreen(ui_->txtDescription->text());
    entry.other = platform::StrToMoney(FromScreen(ui_->txtOther->text()));
    if (KeepsSplit(entry)) return entry;
    entry.category = FromScreen(ui_->cboCategory->currentText());
    entry.principal = platform::StrToMoney(FromScreen(ui_->txtPrincipal->text()));
    entry.payDown = platform::StrToMoney(FromScreen(ui_->txtPayDown->text()));
    entry.interest = platform::StrToMoney(FromScreen(ui_->txtInterest->text()));
    return entry;
}

void frmMtgLog::ShowTotal() {
    core::forms::Guarded(
        [this] { ui_->txtTotal->setText(ToScreen(platform::FormatMoney(Entered().Total()))); });
}

void frmMtgLog::Store() {
    SaveCharge(Entered(), entry_, id_);
}

} // namespace mortgages::screens

#include "books/screens/frmTransaction.h"

#include "books/SaveTransaction.h"
#include "books/TransactionRules.h"
#include "books/screens/CategoryBox.h"
#include "core/Rows.h"
#include "core/binding/Binding.h"
#include "core/binding/ControlValue.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "ui_frmTransaction.h"

namespace books::screens {

using core::binding::ReadValue;
using platform::Recordset;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmTransaction::frmTransaction(QWidget* parent)
    : RecordForm({core::kTransaction, "Transactions", "IdTransaction"}, parent),
      ui_(std::make_unique<Ui::frmTransaction>()) {
    ui_->setupUi(this);
    from_ =
        std::make_unique<PartyBoxes>(*ui_->cboFromType, *ui_->cboFrom, Nobody::NotOffered, this);
    to_ = std::make_unique<PartyBoxes>(*ui_->cboToType, *ui_->cboTo, Nobody::NotOffered, this);
    references_ = std::make_unique<ReferenceBoxes>(
        ReferenceBoxes::Boxes{ui_->cboLease, ui_->cboTenant, ui_->cboBuilding, ui_->cboUnit,
                              ui_->cboMortgage, ui_->cboWorkOrder},
        this);
    Wire();
}

frmTransaction::~frmTransaction() = default;

void frmTransaction::Setup(const TransactionSetup& setup) {
    cancelled_ = true;
    transactionClass_ = setup.transactionClass;
    flags_ = setup.flags;
    OpenRecord(setup.idTransaction, [&] { FillNew(setup); });
    if (Id() == 0 && setup.idTemplate != 0) MarkDirty();
}

void frmTransaction::SetupModal(const TransactionSetup& setup) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowModality(Qt::ApplicationModal);
    Setup(setup);
    exec();
}

void frmTransaction::FillNew(const TransactionSetup& setup) {
    ui_->dpEffectiveDate->SetDay(platform::Today());
    ui_->txtAmount->SetAmount(setup.amount);
    ui_->txtDescription->setText(ToScreen(setup.description));
    FillCategories(*ui_->cboCategory);
    if (!setup.category.empty()) PresetCategory(*ui_->cboCategory, ParseCategory(setup.category));
    references_->Fill(setup.references);
    from_->Show(setup.fromType, setup.fromId);
    to_->Show(setup.toType, setup.toId);
    if (setup.toIsToBeChosen) to_->ShowStored(0, "");
    if (setup.idTransaction == 0 && setup.idTemplate != 0) ShowTemplate(setup.idTemplate);
}

/// The copy is dated today and becomes a new row.
void frmTransaction::ShowTemplate(std::int32_t idTemplate) {
    Recordset row = core::Read("SELECT * FROM Transactions WHERE IdTransaction = ?", {idTemplate});
    if (row.Eof()) return;
    ShowFields(row);
    ui_->dpEffectiveDate->SetDay(platform::Today());
}

void frmTransaction::ShowRow(Recordset& row) {
    ShowFields(row);
    transactionClass_ = ShortOf(row["Class"]);
    flags_ = ShortOf(row["Flags"]);
    ui_->chkMileage->setChecked(IdOf(row["IdMileage"]) != 0);
    shown_ = Entered();
}

void frmTransaction::ShowFields(Recordset& row) {
    // Shown first, so that a category that isn't offered is added to the list with its class.
    if (!row["TaxCategory"].IsNull()) {
        ShowCategory(*ui_->cboCategory, {row["TaxCategory"].AsText(), Ien{ShortOf(row["IEN"])}});
    }
    RecordForm::ShowRow(row);
    from_->ShowStored(IdOf(row["DebitId"]), TextOf(row["DebitDesc"]));
    to_->ShowStored(IdOf(row["CreditId"]), TextOf(row["CreditDesc"]));
    references_->ShowAvailable();
}

void frmTransaction::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Transaction")
                             : tr("Transaction: %1").arg(ui_->txtDescription->text()));
}

Transaction frmTransaction::Entered() const {
    const Category category = ChosenCategory(*ui_->cboCategory);
    const platform::Date day = ui_->dpEffectiveDate->Day().value_or(platform::Date());
    Transaction entered;
    entered.dateEffective = day.IsSet() ? day : platform::Today();
    entered.debit = {from_->Type(), from_->Id(), from_->Name()};
    entered.credit = {to_->Type(), to_->Id(), to_->Name()};
    entered.amount = ReadValue(*ui_->txtAmount, '$')->AsCurrency();
    entered.taxCategory = category.text;
    entered.ien = category.ien;
    entered.checkNumber = FromScreen(ui_->txtCheckNumber->text());
    entered.description = FromScreen(ui_->txtDescription->text());
    entered.transactionClass = transactionClass_;
    entered.flags = flags_;
    static_cast<References&>(entered) = references_->Chosen();
    return entered;
}

bool frmTransaction::Agreed() {
    const Transaction entered = Entered();
    if (Id() != 0 && entered.debit == shown_.debit && entered.credit == shown_.credit) return true;
    const std::string doubt = DoubtAbout(entered);
    return doubt.empty() ||
           platform::TheDialogs().AskYesNo("Confirm Save", doubt, platform::Icon::Question);
}

void frmTransaction::Store() {
    const Transaction entered = Entered();
    const Trip trip = ui_->chkMileage->isChecked() ? Trip::Keep : Trip::None;
    if (Id() == 0) {
        SetId(AddTransaction(entered, trip));
    } else {
        EditTransaction(Id(), entered, shown_, trip);
    }
    cancelled_ = false;
    amount_ = entered.amount;
}

void frmTransaction::Refresh(core::RecordKind kind) {
    if (kind == core::kTransCategory) RefreshCategories(*ui_->cboCategory);
    from_->Refresh(kind);
    to_->Refresh(kind);
    references_->Refresh(kind);
}

} // namespace books::screens

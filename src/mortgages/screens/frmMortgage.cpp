#include "mortgages/screens/frmMortgage.h"

#include <QMenuBar>
#include <QVBoxLayout>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/EnableContainer.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/TabPages.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/screens/AmortPage.h"
#include "mortgages/screens/MtgLog.h"
#include "platform/qt/Text.h"
#include "ui_frmMortgage.h"
#include "ui_frmMortgageEscrow.h"
#include "ui_frmMortgageGeneral.h"
#include "ui_frmMortgageOrigination.h"

namespace mortgages::screens {

using core::binding::FillList;
using platform::qt::FromScreen;

frmMortgage::frmMortgage(QWidget* parent)
    : RecordForm({core::kMortgage, "Mortgage", "IdMortgage"}, parent),
      ui_(std::make_unique<Ui::frmMortgage>()),
      general_(std::make_unique<Ui::frmMortgageGeneral>()),
      origin_(std::make_unique<Ui::frmMortgageOrigination>()),
      escrow_(std::make_unique<Ui::frmMortgageEscrow>()) {
    ui_->setupUi(this);
    general_->setupUi(ui_->tabGeneral);
    origin_->setupUi(ui_->tabOrigination);
    escrow_->setupUi(ui_->tabEscrow);
    MakePanels();
    MakeMenu();
    Wire();
    Connect();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
}

frmMortgage::~frmMortgage() = default;

void frmMortgage::MakePanels() {
    ucMtgLog_ = new MtgLog(this);
    ucMtgLog_->setObjectName(QStringLiteral("ucMtgLog"));
    (new QVBoxLayout(ui_->tabPayments))->addWidget(ucMtgLog_);
    amort_ = new AmortPage(this);
    amort_->setObjectName(QStringLiteral("ucAmort"));
    (new QVBoxLayout(ui_->tabAmortization))->addWidget(amort_);
}

void frmMortgage::Connect() {
    const auto changed = [this] { TermsChanged(); };
    for (QLineEdit* const box : ui_->tabOrigination->findChildren<QLineEdit*>()) {
        if (!box->isReadOnly()) connect(box, &QLineEdit::textChanged, this, changed);
    }
    for (QCheckBox* const box :
         {origin_->chkBalloon, origin_->chkARM, origin_->chkIntOnly, origin_->chkPPM}) {
        connect(box, &QCheckBox::toggled, this, [this] {
            UpdateOptions();
            TermsChanged();
        });
    }
    connect(origin_->cmdMaxRates, &QPushButton::clicked, this, &frmMortgage::ShowWorstCase);
    connect(amort_, &AmortPage::OwnScheduleAsked, this, &frmMortgage::Recalculate);
    connect(general_->cmdIncDueDate, &QPushButton::clicked, this, [this] { MoveDueDate(1); });
    connect(general_->cmdDecDueDate, &QPushButton::clicked, this, [this] { MoveDueDate(-1); });
}

void frmMortgage::Setup(std::int32_t idMortgage, std::int32_t parentBuilding) {
    OpenRecord(
        idMortgage,
        [&] {
            FillList(core::kBuilding, *general_->cboIdBuilding,
                     {.selectedId = parentBuilding, .addNone = true});
            for (const core::RecordKind kind : {core::kMortgageeAccount, core::kAccount})
                FillAccounts(kind);
        },
        [this] {
            core::binding::OfferId(*general_->cboIdMortgagee, core::Config().DefaultMortgagee);
            core::binding::SelectById(*general_->cboIdMortgagee, core::Config().DefaultMortgagee);
            ShowTerms();
        });
}

void frmMortgage::FillAccounts(core::RecordKind kind) {
    if (kind == core::kMortgageeAccount) {
        FillList(kind, *general_->cboIdMortgagee, {.addNone = true});
        return;
    }
    FillList(kind, *general_->cboIdMortgagor, {.addNone = true});
    FillList(kind, *escrow_->cboIdEscrow, {.addNone = true});
}

void frmMortgage::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    stored_ = clsMortgage();
    stored_.LoadRS(row);
    adjustments_.clear();
    ShowTerms();
}

void frmMortgage::ShowCaption() {
    const QString name = general_->txtDescription->text();
    const bool isNew = Id() == 0;
    setWindowTitle(isNew ? tr("Adding New Mortgage") : tr("Mortgage: %1").arg(name));
    ui_->lblTitle->setText(isNew ? tr("New Mortgage (Press Apply to Save)")
                                 : tr("Editing Mortgage: %1").arg(name));
    UpdateControls();
}

std::vector<std::string> frmMortgage::Errors() {
    return MortgageErrors(FromScreen(general_->txtAccountNumber->text()));
}

bool frmMortgage::Agreed() {
    return Id() != 0 || AskToSaveNew();
}

void frmMortgage::Store() {
    platform::UnitOfWork unit(core::App().Connection);
    platform::Recordset row;
    FindRowToWrite(row);
    if (!WritesNewRow()) {
        // The loan may have changed since it was read: by a payment, or another program.
        stored_ = clsMortgage();
        stored_.LoadRS(row);
        loan_ = stored_;
        MakeChangesOn(loan_);
    }
    WriteRow(row);
    loan_.SetDescription(FromScreen(general_->txtDescription->text()));
    SettleRemainder(loan_);
    SaveMortgage(row, loan_, FromScreen(general_->cboIdMortgagee->currentText()));
    unit.Commit();
    adjustments_.clear();
}

void frmMortgage::AfterSave() {
    saved_ = true;
}

void frmMortgage::Refresh(core::RecordKind kind) {
    if (kind == core::kBuilding)
        FillList(core::kBuilding, *general_->cboIdBuilding, {.addNone = true});
    if (kind == core::kAccount) {
        FillAccounts(core::kMortgageeAccount);
        FillAccounts(core::kAccount);
    }
}

void frmMortgage::UpdateControls() {
    const bool isSaved = Id() != 0;
    for (QAction* const command : commands_)
        command->setEnabled(isSaved);
    changeBalance_->setEnabled(isSaved);
    changeTerms_->setEnabled(isSaved);
    core::binding::EnableContainer(*origin_->fraRequired, !isSaved);
    for (QWidget* const term : std::initializer_list<QWidget*>{
             origin_->dpDue, origin_->txtXPriAll, origin_->chkIntOnly, origin_->chkARM})
        term->setEnabled(!isSaved);
    if (isSaved) {
        const QString locked = tr("This term of a saved loan can't be changed");
        origin_->chkIntOnly->setToolTip(locked);
        origin_->chkARM->setToolTip(locked);
        origin_->txtXPriAll->setToolTip(
            tr("Change it with Change the Terms from a Period on, in the menu Mortgage"));
    }
    ucMtgLog_->Load(Id());
    UpdateOptions();
}

void frmMortgage::UpdateOptions() {
    MarkDirty();
    origin_->fraBalloon->setEnabled(origin_->chkBalloon->isChecked());
    origin_->fraARM->setEnabled(origin_->chkARM->isChecked());
    origin_->fraPPM->setEnabled(origin_->chkPPM->isChecked());
    changeRate_->setEnabled(Id() != 0 && origin_->chkARM->isChecked());
}

} // namespace mortgages::screens

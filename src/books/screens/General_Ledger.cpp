#include "books/screens/General_Ledger.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "books/screens/frmTransaction.h"
#include "core/EditRecord.h"
#include "core/Periods.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/binding/PeriodBox.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/PanelCommand.h"
#include "platform/system/Clock.h"
#include "removal/DeleteRecord.h"

namespace books::screens {

using core::forms::Guarded;
using core::forms::PerformOn;

General_Ledger::General_Ledger(QWidget* parent)
    : RecordList(parent),
      token_([this](core::RecordKind kind, std::int16_t, std::int32_t) { NotifyUpdate(kind); }) {
    MakeHead();
    connect(cboDays_, &QComboBox::currentIndexChanged, this, &General_Ledger::PeriodChosen);
    connect(optUnit_, &QRadioButton::toggled, this, &General_Ledger::ScopeChosen);
    connect(this, &RecordList::AddAsked, this, [this] { PerformOn(*this, [this] { Add(); }); });
    connect(this, &RecordList::EditAsked, this, [this](std::int32_t id) {
        PerformOn(*this, [id] { core::EditRecord(core::kTransaction, id); });
    });
    connect(this, &RecordList::DeleteAsked, this, [this](std::int32_t id) {
        PerformOn(*this, [id] { removal::DeleteRecord(core::kTransaction, id); });
    });
    List().setAccessibleName(tr("Transactions"));
    List().setProperty("registryKey", QStringLiteral(R"(SOFTWARE\Vestrel\Kestrom\Ledger)"));
    List().setEnabled(false);
}

void General_Ledger::MakeHead() {
    auto* const head = new QWidget(this);
    auto* const row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    cboDays_ = new QComboBox(head);
    cboDays_->setObjectName(QStringLiteral("cboDays"));
    cboDays_->setAccessibleName(tr("Period"));
    view_.days = core::kPeriods.front().days;
    core::binding::FillPeriods(*cboDays_, view_.days);
    optBuilding_ = new QRadioButton(tr("Building"), head);
    optBuilding_->setObjectName(QStringLiteral("optBuilding"));
    optBuilding_->setToolTip(
        tr("Transactions of the building as a whole, without transactions of its units"));
    optUnit_ = new QRadioButton(tr("Unit"), head);
    optUnit_->setObjectName(QStringLiteral("optUnit"));
    optUnit_->setToolTip(tr("Transactions of this unit"));
    optUnit_->setChecked(true);
    optBuilding_->hide();
    optUnit_->hide();
    row->addWidget(cboDays_);
    row->addWidget(optBuilding_);
    row->addWidget(optUnit_);
    SetHead(head);
}

void General_Ledger::SetParty(core::RecordKind dbType, std::int32_t id, std::int32_t idBuilding) {
    view_.dbType = dbType;
    view_.id = id;
    view_.idBuilding = idBuilding;
    optBuilding_->setVisible(dbType == core::kUnit);
    optUnit_->setVisible(dbType == core::kUnit);
    Refresh();
}

void General_Ledger::Refresh() {
    constexpr std::int32_t kNobody = -1;
    const bool isSomebody = view_.id != 0;
    Allow(isSomebody, isSomebody, isSomebody);
    List().setEnabled(isSomebody);
    LedgerView shown = view_;
    if (!isSomebody) shown.id = shown.idBuilding = kNobody;
    const std::string sql = LedgerSql(shown, platform::Today());
    if (sql.empty()) return ShowNothing({});
    Guarded([&] {
        platform::Recordset rows = core::Read(sql);
        ShowRows(std::move(rows), LedgerStoreName(view_.dbType));
    });
}

void General_Ledger::PeriodChosen() {
    view_.days = cboDays_->currentData().toInt();
    Refresh();
}

void General_Ledger::ScopeChosen() {
    view_.scope = optUnit_->isChecked() ? LedgerScope::Unit : LedgerScope::Building;
    Refresh();
}

void General_Ledger::Add() {
    TransactionSetup setup;
    if (view_.dbType == core::kTenant) setup.references.idTenant = view_.id;
    if (view_.dbType == core::kUnit) {
        setup.references.idBuilding = view_.idBuilding;
        if (view_.scope == LedgerScope::Unit) setup.references.idUnit = view_.id;
    }
    (new frmTransaction)->Setup(setup);
}

void General_Ledger::NotifyUpdate(core::RecordKind kind) {
    if (kind == core::kTransaction) Refresh();
}

} // namespace books::screens

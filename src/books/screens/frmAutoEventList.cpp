#include "books/screens/frmAutoEventList.h"

#include <QPushButton>

#include "books/AutoEventRules.h"
#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/database/Recordset.h"
#include "removal/DeleteRecord.h"
#include "ui_frmAutoEventList.h"

namespace books::screens {

using core::forms::ActionBar;
using core::forms::Guarded;
using core::grid::RecordList;

frmAutoEventList::frmAutoEventList(QWidget* parent)
    : Form(parent), ui_(std::make_unique<Ui::frmAutoEventList>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    ui_->events->Allow(true, true, true);
    ui_->events->List().setAccessibleName(tr("Automated events"));
    ui_->cmdAction->Apply().hide();
    ui_->cmdAction->Cancel().hide();
    connect(ui_->events, &RecordList::AddAsked, this,
            [this] { Perform([] { core::EditRecord(core::kAutoEvent, 0); }); });
    connect(ui_->events, &RecordList::EditAsked, this,
            [this](std::int32_t id) { Perform([id] { core::EditRecord(core::kAutoEvent, id); }); });
    connect(ui_->events, &RecordList::DeleteAsked, this, [this](std::int32_t id) {
        Perform([id] { removal::DeleteRecord(core::kAutoEvent, id); });
    });
    connect(ui_->cmdAction, &ActionBar::CloseClicked, this, &QWidget::close);
    connect(ui_->cmdAction, &ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

frmAutoEventList::~frmAutoEventList() = default;

void frmAutoEventList::Setup() {
    Guarded([this] { UpdateGrid(); });
    Open();
}

void frmAutoEventList::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/,
                                    std::int32_t /*id*/) {
    if (kind == core::kAutoEvent) UpdateGrid();
}

void frmAutoEventList::UpdateGrid() {
    platform::Recordset rows = core::Read(AutoEventListSql());
    ui_->events->ShowRows(std::move(rows), "frmAutoEventList");
}

} // namespace books::screens

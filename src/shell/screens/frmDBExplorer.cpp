#include "shell/screens/frmDBExplorer.h"

#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "core/EditRecord.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "documents/screens/FileObjects.h"
#include "removal/DeleteRecord.h"
#include "reports/screens/DataBrowser.h"
#include "shell/MoveUnit.h"
#include "shell/screens/frmMoveUnit.h"
#include "ui_frmDBExplorer.h"

namespace shell::screens {

using core::forms::Guarded;

namespace {

core::RecordKind RecordKindOf(const PropertyNode& node) {
    switch (node.kind) {
        case PropertyKind::Building:
            return core::kBuilding;
        case PropertyKind::Unit:
            return core::kUnit;
        case PropertyKind::Buildings:
        case PropertyKind::Unclaimed:
            break;
    }
    return core::kNone;
}

} // namespace

frmDBExplorer::frmDBExplorer(QWidget* parent)
    : Form(parent), ui_(std::make_unique<Ui::frmDBExplorer>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    ui_->cmdAction->Apply().hide();
    ui_->cmdAction->Cancel().hide();
    MakeMenu();
    Connect();
}

frmDBExplorer::~frmDBExplorer() = default;

void frmDBExplorer::Connect() {
    const auto guarded = [](auto work) {
        return [work](auto... arguments) { Guarded([&] { work(arguments...); }); };
    };
    connect(ui_->trv, &PropertyTreeView::NodeChosen, this, &frmDBExplorer::NodeChosen);
    connect(ui_->trv, &PropertyTreeView::DeleteAsked, this,
            guarded([this](const PropertyNode& node) { DeleteNode(node); }));
    connect(ui_->trv, &PropertyTreeView::UnitDropped, this,
            guarded([this](std::int32_t unit, std::int32_t building) { Move(unit, building); }),
            Qt::QueuedConnection);
    connect(ui_->trv, &QTreeWidget::itemActivated, this,
            guarded([this](QTreeWidgetItem*, int) { EditNode(ui_->trv->Selected()); }));
    connect(ui_->cmdMove, &QPushButton::clicked, this, &frmDBExplorer::MoveToBuilding);
    connect(ui_->cmdRefresh, &QPushButton::clicked, this, guarded([this](bool) { RefreshTree(); }));
    connect(ui_->cmdAction, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(ui_->cmdAction, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

void frmDBExplorer::Setup() {
    ui_->tab1->setTabVisible(ui_->tab1->indexOf(ui_->pageData), core::App().Expert);
    ui_->ucFOB->SetRecord(core::kNone, 0);
    Guarded([this] { RefreshTree(); });
    Open();
    ui_->trv->setFocus();
}

void frmDBExplorer::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/,
                                 std::int32_t /*id*/) {
    if (kind == core::kFileObject) ui_->ucFOB->Refresh();
}

void frmDBExplorer::RefreshTree() {
    ui_->trv->Apply(tree_.Refresh());
    NodeChosen(ui_->trv->Selected());
}

void frmDBExplorer::NodeChosen(const PropertyNode& node) {
    const core::RecordKind kind = RecordKindOf(node);
    ui_->cmdMove->setEnabled(kind == core::kUnit);
    ui_->cmdMove->setToolTip(kind == core::kUnit
                                 ? QStringLiteral("Moves the selected unit to another building")
                                 : QStringLiteral("Select a unit first"));
    Action("mnuMove")->setEnabled(kind == core::kUnit);
    Action("mnuDelete")->setEnabled(kind != core::kNone);
    Action("mnuEdit")->setEnabled(kind != core::kNone);
    if (kind != core::kNone) Guarded([&] { ui_->ucFOB->SetRecord(kind, node.id); });
}

QAction* frmDBExplorer::Action(const char* name) const {
    return findChild<QAction*>(QLatin1String(name));
}

void frmDBExplorer::MakeMenu() {
    auto* const bar = new QMenuBar(this);
    const auto add = [this](QMenu& menu, const char* name, const QString& text, auto work) {
        QAction* const action = menu.addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [work] { Guarded(work); });
        return action;
    };
    QMenu& tree = *bar->addMenu(tr("&Property"));
    add(tree, "mnuEdit", tr("&Open"), [this] { EditNode(ui_->trv->Selected()); });
    add(tree, "mnuMove", tr("&Move to building ..."), [this] { MoveToBuilding(); });
    add(tree, "mnuDelete", tr("&Delete"), [this] { DeleteNode(ui_->trv->Selected()); });
    add(tree, "mnuRefresh", tr("&Refresh"), [this] {
        RefreshTree();
    })->setShortcut(QKeySequence::Refresh);
    tree.addSeparator();
    add(tree, "mnuClose", tr("&Close"), [this] { close(); })->setShortcut(QKeySequence::Close);
    QMenu& help = *bar->addMenu(tr("He&lp"));
    add(help, "mnuHelp", tr("Database &Explorer"), [this] { core::forms::ShowHelp(*this); });
    add(help, "mnuHelpContents", tr("&Contents"),
        [this] { core::forms::ShowHelpTopic(*this, QStringLiteral("contents")); });
    add(help, "mnuHelpSearch", tr("&Search..."),
        [this] { core::forms::ShowHelpTopic(*this, QLatin1String(core::forms::kHelpSearch)); });
    layout()->setMenuBar(bar);
}

void frmDBExplorer::DeleteNode(const PropertyNode& node) {
    const core::RecordKind kind = RecordKindOf(node);
    if (kind == core::kNone) return;
    if (!removal::DeleteRecord(kind, node.id, removal::Confirm::Ask, removal::Tell::Screens))
        return;
    // Otherwise the neighbour would be selected, and the next Delete would delete it.
    ui_->trv->setCurrentItem(nullptr);
    ui_->ucFOB->SetRecord(core::kNone, 0);
    RefreshTree();
}

void frmDBExplorer::EditNode(const PropertyNode& node) {
    const core::RecordKind kind = RecordKindOf(node);
    if (kind != core::kNone) core::EditRecord(kind, node.id);
}

void frmDBExplorer::MoveToBuilding() {
    const PropertyNode node = ui_->trv->Selected();
    if (node.kind != PropertyKind::Unit) return;
    if (moveForm_) moveForm_->close();
    auto* const form = new frmMoveUnit;
    moveForm_ = form;
    const auto move = [this, node](std::int32_t idBuilding) {
        Guarded([&] { Move(node.id, idBuilding); });
    };
    // The explorer may be closed before the other form.
    connect(this, &QObject::destroyed, form, &QWidget::close);
    form->Setup(ui_->trv->currentItem()->text(0), move);
}

void frmDBExplorer::Move(std::int32_t idUnit, std::int32_t idBuilding) {
    if (!MoveUnit(idUnit, idBuilding)) return;
    RefreshTree(); // a building that was added since gets its node first
    tree_.Move(idUnit, idBuilding);
    ui_->trv->MoveUnder({PropertyKind::Unit, idUnit}, {PropertyKind::Building, idBuilding});
}

} // namespace shell::screens

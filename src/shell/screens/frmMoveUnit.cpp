#include "shell/screens/frmMoveUnit.h"

#include <QPushButton>

#include "core/Rows.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/qt/Text.h"
#include "ui_frmMoveUnit.h"

namespace shell::screens {

frmMoveUnit::frmMoveUnit(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmMoveUnit>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    auto& actions = *ui_->cmdAction;
    actions.Apply().hide();
    actions.Close().setText(QStringLiteral("&Move"));
    connect(ui_->txtFind, &QLineEdit::textChanged, this, &frmMoveUnit::Narrow);
    connect(ui_->txtFind, &QLineEdit::returnPressed, this, &frmMoveUnit::Submit);
    connect(ui_->lstBuildings, &QListWidget::itemActivated, this, &frmMoveUnit::Submit);
    connect(ui_->lstBuildings, &QListWidget::currentRowChanged, this,
            [this](int row) { ui_->cmdAction->Close().setEnabled(row >= 0); });
    connect(&actions, &core::forms::ActionBar::CloseClicked, this, &frmMoveUnit::Submit);
    connect(&actions, &core::forms::ActionBar::CancelClicked, this, &QWidget::close);
    connect(&actions, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

frmMoveUnit::~frmMoveUnit() = default;

void frmMoveUnit::Setup(const QString& unit, std::function<void(std::int32_t)> move) {
    move_ = std::move(move);
    ui_->lblUnit->setText(QStringLiteral("Move %1 to:").arg(unit));
    core::forms::Guarded([this] { Fill(); });
    ui_->cmdAction->Close().setEnabled(false);
    Open();
    ui_->txtFind->setFocus();
}

void frmMoveUnit::Fill() {
    platform::Recordset rows =
        core::Read("SELECT IdBuilding, Address FROM Building ORDER BY Address");
    for (; !rows.Eof(); rows.MoveNext()) {
        auto* const item = new QListWidgetItem(
            platform::qt::ToScreen(platform::TextOf(rows["Address"])), ui_->lstBuildings);
        item->setData(Qt::UserRole, platform::IdOf(rows["IdBuilding"]));
    }
}

void frmMoveUnit::Narrow(const QString& text) {
    for (int row = 0; row < ui_->lstBuildings->count(); ++row) {
        QListWidgetItem* const item = ui_->lstBuildings->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
    }
    const QListWidgetItem* const current = ui_->lstBuildings->currentItem();
    if (current != nullptr && !current->isHidden()) return;
    // So that Enter takes the first match.
    int first = text.isEmpty() ? ui_->lstBuildings->count() : 0;
    while (first < ui_->lstBuildings->count() && ui_->lstBuildings->item(first)->isHidden())
        ++first;
    ui_->lstBuildings->setCurrentRow(first < ui_->lstBuildings->count() ? first : -1);
}

void frmMoveUnit::Submit() {
    const QListWidgetItem* const chosen = ui_->lstBuildings->currentItem();
    if (chosen == nullptr || !move_) return;
    const std::int32_t idBuilding = chosen->data(Qt::UserRole).toInt();
    const auto move = std::exchange(move_, {}); // a second click moves nothing
    close();
    move(idBuilding);
}

} // namespace shell::screens

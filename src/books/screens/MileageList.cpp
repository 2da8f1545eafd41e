// The mileage log's list and filter, and the connections of the form.

#include <QMenuBar>
#include <QScopedValueRollback>
#include <QShortcut>

#include <fmt/core.h>

#include "books/screens/frmMileage.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/RegistryKeys.h"
#include "core/Rows.h"
#include "core/Settings.h"
#include "core/binding/ComboList.h"
#include "core/binding/PeriodBox.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/grid/GridColumns.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "ui_frmMileage.h"

namespace books::screens {

using core::binding::GetSelectedId;
using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr int kFirstShown = 1;
constexpr int kMileage = 5;
constexpr int kMeal = 8;

/// Replaces the list but keeps the entered text.
void Offer(QComboBox& combo, core::ChoiceList list) {
    list.SetText(FromScreen(combo.currentText()));
    core::binding::ShowInCombo(list, combo);
}

} // namespace

void frmMileage::MakeMenu() {
    auto* const bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    QMenu* const menu = bar->addMenu(tr("&Trip"));
    const auto add = [&](const QString& text, const char* name, void (frmMileage::*work)()) {
        QAction* const item = menu->addAction(text);
        item->setObjectName(QLatin1String(name));
        item->setAutoRepeat(false);
        connect(item, &QAction::triggered, this,
                [this, work] { Guarded([&] { (this->*work)(); }); });
        return item;
    };
    add(tr("&New Trip"), "mnuNew", &frmMileage::NewTrip)->setShortcut(QKeySequence::New);
    copy_ = add(tr("Cop&y to New"), "mnuCopy", &frmMileage::CopyTrip);
    delete_ = add(tr("&Delete"), "mnuDelete", &frmMileage::DeleteTrip);
    menu->addSeparator();
    add(tr("&Reconstruct a Log ..."), "mnuWizard", &frmMileage::OpenWizard);
    menu->setToolTipsVisible(true);
}

void frmMileage::Connect() {
    const auto on = [this](QPushButton* button, void (frmMileage::*work)()) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, work] { Guarded([&] { (this->*work)(); }); });
    };
    on(ui_->cmdAdd, &frmMileage::Add);
    on(ui_->cmdNew, &frmMileage::NewTrip);
    on(ui_->cmdDelete, &frmMileage::DeleteTrip);
    on(ui_->cmdWizard, &frmMileage::OpenWizard);
    core::binding::ConnectChanges(*this, *this, [this] { ShowAvailable(); });

    const auto changed = [this](QComboBox* box, void (frmMileage::*work)()) {
        connect(box, &QComboBox::currentIndexChanged, this, [this, work] {
            if (!filling_ && !Loading()) Guarded([&] { (this->*work)(); });
        });
    };
    changed(ui_->cboDays, &frmMileage::PeriodChosen);
    changed(ui_->cboFilter, &frmMileage::FillFilterItems);
    changed(ui_->cboFilterItem, &frmMileage::FillGrid);

    ui_->grd->setSelectionMode(QAbstractItemView::SingleSelection);
    core::grid::SetupGrid(*ui_->grd);
    connect(ui_->grd, &core::grid::Grid::SelectionMoved, this,
            [this] { Guarded([this] { RowSelected(); }); });
    const auto key = [this](Qt::Key pressed, void (frmMileage::*work)()) {
        auto* const shortcut = new QShortcut(QKeySequence(pressed), ui_->grd);
        shortcut->setContext(Qt::WidgetShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this,
                [this, work] { Guarded([&] { (this->*work)(); }); });
    };
    key(Qt::Key_Insert, &frmMileage::NewTrip);
    key(Qt::Key_Delete, &frmMileage::DeleteTrip);
}

/// Makes the start reading of a new trip follow its vehicle until the user types one.
void frmMileage::ConnectChoices() {
    connect(ui_->txtOBegin, &QLineEdit::textEdited, this, [this] { beginTyped_ = true; });
    // Only for a new trip: the readings of a stored one must not change.
    connect(ui_->cboVehicle, &QComboBox::currentIndexChanged, this, [this] {
        if (!Loading() && !filling_) Guarded([this] { VehicleChosen(); });
    });
    connect(ui_->cboVehicle->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (Dirty()) Guarded([this] { VehicleChosen(); });
    });
    connect(ui_->cboBuilding, &QComboBox::currentIndexChanged, this, [this] {
        if (!Loading() && !filling_) Guarded([this] { BuildingChosen(); });
    });
}

void frmMileage::FillLists() {
    const QScopedValueRollback filling(filling_, true);
    core::binding::FillPeriods(*ui_->cboDays, core::Preferences().ViewMileageDays);
    ui_->cboFilter->clear();
    ui_->cboFilter->addItems({tr("None"), tr("Vehicle"), tr("Building")});
    Offer(*ui_->cboVehicle, KnownVehicles());
    Offer(*ui_->cboDestination, KnownDestinations());
    core::binding::FillList(core::kBuilding, *ui_->cboBuilding, {.addNone = true});
    FillFilterItems();
}

void frmMileage::Refresh(core::RecordKind kind) {
    if (kind != core::kMileage && kind != core::kBuilding) return;
    const QScopedValueRollback filling(filling_, true);
    if (kind == core::kBuilding)
        core::binding::FillList(core::kBuilding, *ui_->cboBuilding, {.addNone = true});
    if (kind == core::kMileage) {
        Offer(*ui_->cboVehicle, KnownVehicles());
        Offer(*ui_->cboDestination, KnownDestinations());
        if (!Dirty()) VehicleChosen(); // a new trip starts where the last one ended
    }
    FillFilterItems();
}

/// The choice stays selected while it is still offered.
void frmMileage::FillFilterItems() {
    const QScopedValueRollback filling(filling_, true);
    const std::int32_t id = GetSelectedId(*ui_->cboFilterItem);
    const std::string text = FromScreen(ui_->cboFilterItem->currentText());
    core::ChoiceList items = TripFilterItems(Filter().field);
    if (id != 0) {
        core::SelectById(items, id);
    } else {
        core::SelectByText(items, text);
    }
    core::binding::ShowInCombo(items, *ui_->cboFilterItem);
    ui_->cboFilterItem->setEnabled(Filter().field != TripField::None);
    FillGrid();
}

TripFilter frmMileage::Filter() const {
    return {.days = ui_->cboDays->currentData().toInt(),
            .field = TripField{ui_->cboFilter->currentIndex()},
            .item = core::Choice{FromScreen(ui_->cboFilterItem->currentText()),
                                 GetSelectedId(*ui_->cboFilterItem)}};
}

void frmMileage::PeriodChosen() {
    core::Preferences().ViewMileageDays = ui_->cboDays->currentData().toInt();
    core::SetRegNumber(core::kPreferencesKey, "ViewMileageDays",
                       core::Preferences().ViewMileageDays);
    FillGrid();
}

void frmMileage::FillGrid() {
    const QScopedValueRollback filling(filling_, true);
    core::grid::LoadGrid(*ui_->grd, core::Read(TripListSql(Filter())));
    core::grid::SizeColumns(*ui_->grd, kFirstShown);
    ui_->grd->SetEmptyText(tr("No trips in this period."));
    if (Id() == 0 || !ui_->grd->SelectId(Id())) ui_->grd->SelectNone(0);
    ShowTotals();
}

void frmMileage::ShowTotals() {
    const core::grid::GridModel& model = ui_->grd->Model();
    double miles = 0;
    platform::Currency meals;
    for (int row = 0; row < model.rowCount(); ++row) {
        const platform::Value distance = model.CellValue(row, kMileage);
        const platform::Value meal = model.CellValue(row, kMeal);
        if (!distance.IsNull()) miles += distance.AsDouble();
        if (!meal.IsNull()) meals += meal.AsCurrency();
    }
    ui_->lblTotals->setText(ToScreen(fmt::format(
        "{} {}, {} miles, meals {}", model.rowCount(), model.rowCount() == 1 ? "trip" : "trips",
        platform::FormatNumber(miles, "#,##0.0"), platform::FormatMoney(meals))));
}

void frmMileage::RowSelected() {
    const std::int32_t id = ui_->grd->SelectedId();
    if (filling_ || id == 0 || id == Id()) return;
    if (MayLeaveTrip()) return ShowRecord(id);
    const QScopedValueRollback filling(filling_, true);
    if (Id() == 0 || !ui_->grd->SelectId(Id())) ui_->grd->SelectNone(0);
}

} // namespace books::screens

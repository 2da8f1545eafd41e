// The menus and buttons of the building's screen.

#include <QEvent>
#include <QMenuBar>
#include <memory>

#include "books/screens/frmDepreciation.h"
#include "core/References.h"
#include "core/binding/AddressBox.h"
#include "core/binding/NumberBox.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/RecordBar.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "records/BuildingRules.h"
#include "records/screens/frmBuilding.h"
#include "ui_frmBuilding.h"
#include "ui_frmBuildingFinancial.h"
#include "ui_frmBuildingPlace.h"

namespace records::screens {

using core::binding::NumberTyped;
using core::forms::Guarded;
using platform::qt::FromScreen;

namespace {

constexpr std::string_view kPeriodFormat = "#,###.0";

} // namespace

void frmBuilding::MakeMenus() {
    auto* const bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    QMenu& menu = *bar->addMenu(core::forms::WithFreeMnemonic(*this, tr("Building")));
    QAction* const addUnit = menu.addAction(tr("Add &Unit"), this, &frmBuilding::AddUnit);
    addUnit->setObjectName(QStringLiteral("mnuAddUnit"));
    addUnit->setShortcut(Qt::CTRL | Qt::Key_N);
    addUnit->setAutoRepeat(false);
}

void frmBuilding::Connect() {
    core::binding::FillPlaceByZip(*place_->txtZip,
                                  {place_->txtCity, place_->txtState, place_->txtCounty});
    connect(ui_->cboSelUnit, &QComboBox::activated, this, &frmBuilding::UnitChosen);
    connect(place_->lblTaxAccount, &QLabel::linkActivated, this, &frmBuilding::OpenTaxPage);
    connect(financial_->cmdCalcEquity, &QPushButton::clicked, this,
            [this] { Guarded([this] { CalculateEquity(); }); });
    connect(financial_->cmdShowDepr, &QPushButton::clicked, this,
            [this] { Guarded([this] { ShowDepreciation(); }); });
    connect(financial_->txtDeprPeriod, &QLineEdit::editingFinished, this, [this] {
        QLineEdit& box = *financial_->txtDeprPeriod;
        if (box.text().isEmpty()) return;
        const QString shown =
            platform::qt::ToScreen(platform::FormatNumber(NumberTyped(box), kPeriodFormat));
        if (box.text() != shown) box.setText(shown);
    });
}

/// A link keeps the colour of the palette it was created with, so it is made again.
void frmBuilding::changeEvent(QEvent* event) {
    RecordForm::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !isVisible()) return;
    QLabel& link = *place_->lblTaxAccount;
    const QString text = link.text();
    link.clear();
    link.setText(text);
}

void frmBuilding::CalculateEquity() {
    const auto value = financial_->txtMktValue->Amount();
    financial_->txtEquity->SetAmount(EquityAt(value.value_or(platform::Currency()), Id()));
}

void frmBuilding::ShowDepreciation() {
    const auto basis = financial_->txtDeprBasis->Amount().value_or(platform::Currency());
    const auto fault = DepreciationFault(basis, NumberTyped(*financial_->txtDeprPeriod));
    if (fault) {
        platform::TheDialogs().ShowMessage("Error", *fault, platform::Icon::Exclamation);
        return;
    }
    using books::screens::frmDepreciation;
    if (Id() != 0 && frmDepreciation::BringToFront(Id())) return;
    auto schedule = std::make_unique<frmDepreciation>();
    schedule->Setup(Id(), FromScreen(place_->txtAddress->text()), basis.ToDouble(),
                    FromScreen(financial_->dpPurchDate->text()),
                    FromScreen(financial_->cboDeprMethod->currentText()),
                    NumberTyped(*financial_->txtDeprPeriod));
    // The window deletes itself when it closes.
    static_cast<void>(schedule.release());
}

void frmBuilding::OpenTaxPage() {
    const auto text = [](const QLineEdit* box) { return FromScreen(box->text().trimmed()); };
    core::GetTaxUrl(text(place_->txtTaxAccount), text(place_->txtCounty), text(place_->txtState));
}

} // namespace records::screens

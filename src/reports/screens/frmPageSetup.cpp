#include "reports/screens/frmPageSetup.h"

#include <QDoubleSpinBox>
#include <QPushButton>
#include <array>
#include <cmath>

#include "ui_frmPageSetup.h"

namespace reports::screens {

using platform::PageOrientation;
using platform::PageSetup;
using platform::Paper;
using platform::Twips;

namespace {

/// Margins are shown in inches, or in millimetres if A4 is the usual paper.
struct Unit {
    double twips;
    int decimals;
    double step;
    const char* suffix;
};

Unit TheUnit() {
    if (platform::DefaultPaper() == Paper::A4) {
        return {platform::kTwipsPerInch / 25.4, 0, 1, " mm"};
    }
    return {platform::kTwipsPerInch, 2, 0.25, " in"};
}

Twips ReadLength(const QDoubleSpinBox& box) {
    return static_cast<Twips>(std::lround(box.value() * TheUnit().twips));
}

void ShowLength(Twips length, QDoubleSpinBox& box) {
    box.setValue(length / TheUnit().twips);
}

} // namespace

frmPageSetup::frmPageSetup(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmPageSetup>()) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    for (QDoubleSpinBox* const box : findChildren<QDoubleSpinBox*>()) {
        box->setDecimals(TheUnit().decimals);
        box->setSingleStep(TheUnit().step);
        box->setSuffix(QLatin1String(TheUnit().suffix));
        box->setRange(0, 30 * platform::kTwipsPerInch / TheUnit().twips);
        connect(box, &QDoubleSpinBox::valueChanged, this, &frmPageSetup::ShowRoom);
    }
    connect(ui_->cboPaper, &QComboBox::currentIndexChanged, this, &frmPageSetup::ShowRoom);
    connect(ui_->optLandscape, &QRadioButton::toggled, this, &frmPageSetup::ShowRoom);
}

frmPageSetup::~frmPageSetup() = default;

void frmPageSetup::Setup(const PageSetup& setup, OrientationChoice choice) {
    ui_->cboPaper->setCurrentIndex(setup.paper == Paper::A4 ? 1 : 0);
    const bool isLandscape = setup.orientation == PageOrientation::Landscape;
    ui_->optLandscape->setChecked(isLandscape);
    ui_->optPortrait->setChecked(!isLandscape);
    if (choice == OrientationChoice::Fixed) {
        for (QRadioButton* const option : {ui_->optPortrait, ui_->optLandscape}) {
            option->setEnabled(false);
            option->setToolTip(tr("This report has its own orientation"));
        }
    }
    ShowLength(setup.marginLeft, *ui_->txtMarginLeft);
    ShowLength(setup.marginRight, *ui_->txtMarginRight);
    ShowLength(setup.marginTop, *ui_->txtMarginTop);
    ShowLength(setup.marginBottom, *ui_->txtMarginBottom);
    ShowRoom();
}

PageSetup frmPageSetup::Chosen() const {
    PageSetup setup;
    setup.paper = ui_->cboPaper->currentIndex() == 1 ? Paper::A4 : Paper::Letter;
    setup.orientation =
        ui_->optLandscape->isChecked() ? PageOrientation::Landscape : PageOrientation::Portrait;
    setup.marginLeft = ReadLength(*ui_->txtMarginLeft);
    setup.marginRight = ReadLength(*ui_->txtMarginRight);
    setup.marginTop = ReadLength(*ui_->txtMarginTop);
    setup.marginBottom = ReadLength(*ui_->txtMarginBottom);
    return setup;
}

void frmPageSetup::ShowRoom() {
    const PageSetup chosen = Chosen();
    const bool hasRoom = chosen == chosen.WithSaneMargins();
    ui_->lblRoom->setText(hasRoom ? QString()
                                  : tr("These margins leave too little room to print."));
    ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(hasRoom);
}

} // namespace reports::screens

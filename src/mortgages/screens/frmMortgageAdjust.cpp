#include "mortgages/screens/frmMortgageAdjust.h"

#include <algorithm>

#include "core/binding/DayErrors.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmMortgageAdjust.h"

namespace mortgages::screens {

using platform::Currency;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

double RateIn(const QLineEdit& box) {
    return platform::StrToDouble(FromScreen(box.text())) / 100;
}

int PeriodIn(const QLineEdit& box) {
    return platform::StrToInt32(FromScreen(box.text()));
}

Currency AmountIn(const core::binding::MoneyEdit& box) {
    return box.Amount().value_or(Currency());
}

void ShowRate(QLineEdit& box, double rate) {
    box.setText(ToScreen(platform::FormatNumber(rate, "0.0##########")));
}

} // namespace

frmMortgageAdjust::frmMortgageAdjust(QWidget* parent)
    : EntryForm(parent, core::FormSizing::Fixed), ui_(std::make_unique<Ui::frmMortgageAdjust>()) {
    ui_->setupUi(this);
}

frmMortgageAdjust::~frmMortgageAdjust() = default;

void frmMortgageAdjust::Prepare(Mode mode, const clsMortgage& loan) {
    mode_ = mode;
    loan_ = loan;
    ui_->fraAdjustInt->setVisible(mode == Mode::Rate);
    ui_->fraAdjustBal->setVisible(mode == Mode::Balance);
    ui_->fraAdjustXPri->setVisible(mode == Mode::Terms);
    ui_->fraTakeBack->setVisible(mode == Mode::TakeBack);
}

void frmMortgageAdjust::SetupInt(const clsMortgage& loan) {
    Prepare(Mode::Rate, loan);
    setWindowTitle(tr("Change Interest Rate"));
    Wire(tr("Chan&ge Rate"), tr("Show the schedule with this rate (Enter)"), "CHANGEI");
    Begin([&] {
        ui_->txtPer_Int->setText(QString::number(loan.CurrentPeriod()));
        ShowRate(*ui_->txtI_Int, loan.GetRate(0));
    });
}

void frmMortgageAdjust::SetupBalance(const clsMortgage& loan) {
    Prepare(Mode::Balance, loan);
    setWindowTitle(tr("Adjust to Lender's Balance"));
    Wire(tr("&Proceed"), tr("Show the schedule with this balance (Enter)"), "PROCEEDBAL");
    Begin([&] {
        ui_->txtBalance->SetAmount(Currency::FromDouble(loan.GetPV(0)));
        ui_->dpNextDue->SetDay(loan.NextDue());
        ShowRate(*ui_->txtI_Bal, loan.OrigRate());
        ui_->txtI_Bal->setEnabled(loan.ARM());
    });
}

void frmMortgageAdjust::SetupTerms(const clsMortgage& loan) {
    Prepare(Mode::Terms, loan);
    setWindowTitle(tr("Change the Terms from a Period on"));
    Wire(tr("Chan&ge Terms"), tr("Show the schedule with these terms (Enter)"), "CHANGETERMS");
    Begin([&] {
        ui_->txtPer_XPri->setText(QString::number(loan.CurrentPeriod()));
        ui_->txtXPri->SetAmount(Currency::FromDouble(loan.GetXPRI(0)));
    });
}

void frmMortgageAdjust::SetupTakeBack(const clsMortgage& loan) {
    Prepare(Mode::TakeBack, loan);
    setWindowTitle(tr("Remove Extra Principal"));
    Wire(tr("&Remove"), tr("Show the schedule without this entry (Enter)"), "TAKEBACK");
    Begin([&] {
        for (const ExtraEntry& entry : ExtraEntries(loan)) {
            const QString text = tr("Payment %1, due %2: %3")
                                     .arg(entry.period)
                                     .arg(ToScreen(entry.due.ToText()),
                                          ToScreen(platform::FormatMoney(entry.amount)));
            ui_->cboTakeBack->addItem(text, entry.period);
        }
        // The latest adjustment is the one most likely made by mistake.
        const int before = ui_->cboTakeBack->findData(loan.CurrentPeriod() - 1);
        ui_->cboTakeBack->setCurrentIndex(std::max(before, 0));
    });
}

Adjustment frmMortgageAdjust::Entered() const {
    switch (mode_) {
        case Mode::Balance:
            return LenderBalance{ui_->dpNextDue->Day().value_or(platform::Date()),
                                 AmountIn(*ui_->txtBalance), RateIn(*ui_->txtI_Bal)};
        case Mode::Terms:
            return ExtraFrom{PeriodIn(*ui_->txtPer_XPri), AmountIn(*ui_->txtXPri)};
        case Mode::TakeBack:
            return WithoutExtra{ui_->cboTakeBack->currentData().toInt()};
        case Mode::Rate:
            break;
    }
    return RateFrom{PeriodIn(*ui_->txtPer_Int), RateIn(*ui_->txtI_Int)};
}

std::vector<std::string> frmMortgageAdjust::Errors() {
    const Adjustment entered = Entered();
    std::vector<std::string> errors;
    if (const auto* const rate = std::get_if<RateFrom>(&entered)) {
        errors = AdjustErrors(loan_, *rate);
    } else if (const auto* const extra = std::get_if<ExtraFrom>(&entered)) {
        errors = AdjustErrors(loan_, *extra);
    } else if (const auto* const balance = std::get_if<LenderBalance>(&entered)) {
        errors = AdjustErrors(loan_, *balance);
        if (!balance->day.IsSet()) errors.push_back(core::binding::NotADay(*ui_->dpNextDue));
    }
    return errors;
}

void frmMortgageAdjust::Store() {
    Q_EMIT Given(Entered());
}

} // namespace mortgages::screens

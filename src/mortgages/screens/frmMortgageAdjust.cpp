#include "mortgages/screens/frmMortgageAdjust.h"

#include "core/binding/DayErrors.h"
#include "mortgages/MortgageAdjust.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "ui_frmMortgageAdjust.h"

namespace mortgages::screens {

using platform::Currency;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

double NumberIn(const QLineEdit& box) {
    return platform::StrToDouble(FromScreen(box.text()));
}

void ShowRate(QLineEdit& box, double rate) {
    box.setText(ToScreen(platform::FormatNumber(rate, "0.0##########")));
}

} // namespace

frmMortgageAdjust::frmMortgageAdjust(QWidget* parent)
    : EntryForm(parent), ui_(std::make_unique<Ui::frmMortgageAdjust>()) {
    ui_->setupUi(this);
}

frmMortgageAdjust::~frmMortgageAdjust() = default;

void frmMortgageAdjust::SetupInt(int period, double rate) {
    setWindowTitle(tr("Change Interest Rate"));
    ui_->fraAdjustBal->hide();
    Wire(tr("Chan&ge Rate"), tr("Take the rate over into the schedule (Enter)"), "CHANGEI");
    Begin([&] {
        ui_->txtPer_Int->setText(QString::number(period));
        ShowRate(*ui_->txtI_Int, rate);
    });
}

void frmMortgageAdjust::SetupBalance(Currency balance, platform::Date nextDue, double rate) {
    setWindowTitle(tr("Adjust to Lender's Balance"));
    ofBalance_ = true;
    oldBalance_ = balance;
    ui_->fraAdjustInt->hide();
    Wire(tr("&Proceed"), tr("Take the balance over into the schedule (Enter)"), "PROCEEDBAL");
    Begin([&] {
        ui_->txtBalance->SetAmount(balance);
        ui_->dpNextDue->SetDay(nextDue);
        ShowRate(*ui_->txtI_Bal, rate);
    });
}

std::vector<std::string> frmMortgageAdjust::Errors() {
    if (!ofBalance_)
        return RateErrors(platform::StrToInt32(FromScreen(ui_->txtPer_Int->text())),
                          NumberIn(*ui_->txtI_Int));
    std::vector<std::string> errors = BalanceErrors(ui_->txtBalance->Amount().value_or(Currency()),
                                                    oldBalance_, NumberIn(*ui_->txtI_Bal));
    const auto day = ui_->dpNextDue->Day();
    if (!day || !day->IsSet()) errors.push_back(core::binding::NotADay(*ui_->dpNextDue));
    return errors;
}

void frmMortgageAdjust::Store() {
    if (ofBalance_) {
        Q_EMIT BalanceGiven(*ui_->dpNextDue->Day(), ui_->txtBalance->Amount().value_or(Currency()),
                            NumberIn(*ui_->txtI_Bal) / 100);
    } else {
        Q_EMIT RateGiven(platform::StrToInt32(FromScreen(ui_->txtPer_Int->text())),
                         NumberIn(*ui_->txtI_Int) / 100);
    }
}

} // namespace mortgages::screens

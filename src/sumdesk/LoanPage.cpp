#include "sumdesk/LoanPage.h"

#include "platform/qt/Announce.h"
#include "platform/qt/Text.h"
#include "ui_LoanPage.h"

namespace sumdesk {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr LoanField kWanted[] = {LoanField::Payment, LoanField::Rate, LoanField::Term};

} // namespace

LoanPage::LoanPage(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::LoanPage>()) {
    ui_->setupUi(this);
    for (QLineEdit* const box : findChildren<QLineEdit*>()) {
        connect(box, &QLineEdit::textChanged, ui_->lblAnswer, &QLabel::clear);
        connect(box, &QLineEdit::returnPressed, this, &LoanPage::Calculate);
    }
    connect(ui_->cboFind, &QComboBox::currentIndexChanged, this, &LoanPage::ChooseWanted);
    connect(ui_->cmdLoan, &QPushButton::clicked, this, &LoanPage::Calculate);
    ChooseWanted();
}

LoanPage::~LoanPage() = default;

LoanField LoanPage::Wanted() const {
    return kWanted[ui_->cboFind->currentIndex()];
}

QLineEdit& LoanPage::BoxOf(LoanField field) const {
    switch (field) {
        case LoanField::Rate:
            return *ui_->txtRate;
        case LoanField::Term:
            return *ui_->txtTerm;
        case LoanField::Payment:
            return *ui_->txtPayment;
        case LoanField::Paid:
            return *ui_->txtPaid;
        case LoanField::Amount:
            break;
    }
    return *ui_->txtAmount;
}

void LoanPage::ChooseWanted() {
    for (const LoanField field : kWanted)
        BoxOf(field).setEnabled(field != Wanted());
    BoxOf(Wanted()).clear();
    ui_->lblAnswer->clear();
}

void LoanPage::Calculate() {
    LoanEntries entries;
    entries.find = Wanted();
    entries.amount = FromScreen(ui_->txtAmount->text());
    entries.rate = FromScreen(ui_->txtRate->text());
    entries.term = FromScreen(ui_->txtTerm->text());
    entries.payment = FromScreen(ui_->txtPayment->text());
    entries.paid = FromScreen(ui_->txtPaid->text());
    try {
        ShowAnswer(WorkOutLoan(entries));
    } catch (const LoanError& fault) {
        BoxOf(Wanted()).clear();
        ui_->lblAnswer->setText(ToScreen(fault.what()));
        BoxOf(fault.Field()).setFocus();
        BoxOf(fault.Field()).selectAll();
    }
    platform::qt::Announce(*ui_->lblAnswer);
}

void LoanPage::ShowAnswer(const LoanAnswer& answer) {
    BoxOf(Wanted()).setText(ToScreen(FoundText(answer, Wanted())));
    const std::string text = Describe(answer);
    ui_->lblAnswer->setText(ToScreen(text));
    calculator_->AddToTape(text);
    Q_EMIT TapeChanged();
}

void LoanPage::Clear() {
    for (QLineEdit* const box : findChildren<QLineEdit*>())
        box->clear();
    ui_->txtAmount->setFocus();
}

} // namespace sumdesk

#include "leases/screens/frmReturnPayment.h"

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/binding/DateEdit.h"
#include "core/binding/MoneyEdit.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Text.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "ui_frmReturnPayment.h"

namespace leases::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmReturnPayment::frmReturnPayment(QWidget* parent)
    : EntryForm(parent), ui_(std::make_unique<Ui::frmReturnPayment>()) {
    ui_->setupUi(this);
    Wire(tr("&Submit"), tr("Post the return and close (Enter)"), "SUBMIT");
    for (QLineEdit* const box :
         std::initializer_list<QLineEdit*>{ui_->dpReturned, ui_->txtFee, ui_->dpNextDue}) {
        connect(box, &QLineEdit::textChanged, this, [this] {
            if (!Loading()) Guarded([this] { ShowPreview(); });
        });
    }
}

frmReturnPayment::~frmReturnPayment() = default;

void frmReturnPayment::Setup(std::int32_t idTransaction) {
    if (!Guarded([&] { returned_ = ProposeReturn(idTransaction); })) {
        deleteLater();
        return;
    }
    core::binding::SetTag(*this, std::to_string(idTransaction));
    Begin([this] { ShowReturn(); });
    ui_->txtFee->setFocus();
    ui_->txtFee->selectAll();
}

void frmReturnPayment::ShowReturn() {
    const RentPayment& payment = returned_.payment;
    setWindowTitle(tr("Returned Payment: %1")
                       .arg(ToScreen(core::GetDescription(core::kLease, payment.idLease))));
    ui_->lblPayment->setText(tr("%1 of %2 from %3")
                                 .arg(ToScreen(platform::FormatMoney(returned_.amount)),
                                      ToScreen(payment.dateEffective.ToText()),
                                      ToScreen(payment.from.description)));
    ui_->dpReturned->SetDay(returned_.date);
    ui_->txtFee->SetAmount(returned_.fee);
    const bool hasDue = returned_.dueNow.IsSet();
    ui_->lblNextDue->setVisible(hasDue);
    ui_->dpNextDue->setVisible(hasDue);
    if (hasDue) ui_->dpNextDue->SetDay(returned_.dueAfter);
    ShowPreview();
}

void frmReturnPayment::ReadEntries() {
    returned_.date = ui_->dpReturned->Day().value_or(platform::Date());
    returned_.fee = ui_->txtFee->Amount().value_or(platform::Currency());
    if (returned_.dueNow.IsSet())
        returned_.dueAfter = ui_->dpNextDue->Day().value_or(platform::Date());
}

void frmReturnPayment::ShowPreview() {
    ReadEntries();
    ui_->lvwPreview->ShowPreview(PreviewReturn(returned_));
}

std::vector<std::string> frmReturnPayment::Errors() {
    std::vector<std::string> lines = EntryForm::Errors();
    if (!ui_->txtFee->Amount())
        lines.push_back("\"" + FromScreen(ui_->txtFee->text()) + "\" is not an amount of money.");
    if (!lines.empty()) return lines;
    ReadEntries();
    return ReturnErrors(returned_);
}

void frmReturnPayment::Store() {
    ReadEntries();
    try {
        SubmitReturn(returned_);
    } catch (const platform::ConflictError&) {
        // The preview must show the present books when the user reads why nothing was posted.
        Guarded([this] {
            const PaymentReturn entered = returned_;
            PaymentReturn now = ProposeReturn(entered.payment.idTransaction);
            now.date = entered.date;
            now.fee = entered.fee;
            returned_ = now;
            Quietly([this] { ShowReturn(); });
        });
        throw;
    }
}

} // namespace leases::screens

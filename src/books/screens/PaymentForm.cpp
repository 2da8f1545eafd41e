#include "books/screens/PaymentForm.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/DateEdit.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Text.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace books::screens {

using core::binding::GetSelectedId;
using core::binding::SelectOrName;
using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

PaymentForm::PaymentForm(QWidget* parent)
    : EntryForm(parent), chargeMenu_(new QMenu(tr("&Charges"), this)) {}

PaymentForm::~PaymentForm() = default;

void PaymentForm::WirePayment(QAbstractItemView& charges, QMenu* before) {
    charges_ = &charges;
    boxes_ = {.from = findChild<QComboBox*>(QStringLiteral("cboFrom")),
              .to = findChild<QComboBox*>(QStringLiteral("cboTo")),
              .type = findChild<QComboBox*>(QStringLiteral("cboPaymentType")),
              .day = findChild<core::binding::DateEdit*>(QStringLiteral("dpEffectiveDate")),
              .check = findChild<QLineEdit*>(QStringLiteral("txtCheckNumber")),
              .description = findChild<QLineEdit*>(QStringLiteral("txtDescription"))};
    auto* const bar = new QMenuBar(this);
    if (before != nullptr) bar->addMenu(before);
    bar->addMenu(chargeMenu_);
    layout()->setMenuBar(bar);
    charges.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&charges, &QWidget::customContextMenuRequested, this,
            [this](QPoint where) { chargeMenu_->popup(charges_->viewport()->mapToGlobal(where)); });
    Wire(tr("&Submit"), tr("Post the payment and close (Enter)"), "SUBMIT");
}

QAction* PaymentForm::AddItem(QMenu& menu, const char* name, const QString& text,
                              const std::function<void()>& work) {
    QAction* const action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, [this, work] { Perform(work); });
    return action;
}

void PaymentForm::OpenPayment(std::int32_t idTransaction, const std::function<void()>& read) {
    if (!Guarded(read)) {
        deleteLater();
        return;
    }
    core::binding::SetTag(*this, idTransaction == 0 ? "" : std::to_string(idTransaction));
    Begin([this] { ShowPayment(); });
    charges_->setFocus();
}

void PaymentForm::Store() {
    try {
        PostPayment();
    } catch (const platform::ConflictError&) {
        Quietly([this] { RereadCharges(); });
        throw;
    }
}

void PaymentForm::ShowEntries(const Payment& payment, const std::vector<std::string>& types) {
    FillParties();
    SelectOrName(*boxes_.to, payment.to.id, payment.to.description);
    SelectOrName(*boxes_.from, payment.from.id, payment.from.description);
    for (const std::string& type : types)
        boxes_.type->addItem(ToScreen(type));
    core::binding::SelectByText(*boxes_.type, payment.paymentType, {.setText = true});
    boxes_.day->SetDay(payment.dateEffective);
    boxes_.check->setText(ToScreen(payment.checkNumber));
    boxes_.description->setText(ToScreen(payment.description));
    boxes_.description->setCursorPosition(0);
}

void PaymentForm::ReadEntries(Payment& payment) const {
    payment.dateEffective = boxes_.day->Day().value_or(platform::Date());
    payment.from.id = GetSelectedId(*boxes_.from);
    payment.from.description = FromScreen(boxes_.from->currentText());
    ReadReceiver(payment);
    payment.checkNumber = FromScreen(boxes_.check->text());
    payment.paymentType = FromScreen(boxes_.type->currentText());
    payment.description = platform::Trim(FromScreen(boxes_.description->text()));
}

void PaymentForm::ReadReceiver(Payment& payment) const {
    payment.to.id = GetSelectedId(*boxes_.to);
    payment.to.description = FromScreen(boxes_.to->currentText());
}

void PaymentForm::FillParty(core::RecordKind kind, QComboBox& combo) {
    core::binding::FillList(kind, combo, {.keepText = GetSelectedId(combo) == 0});
}

} // namespace books::screens

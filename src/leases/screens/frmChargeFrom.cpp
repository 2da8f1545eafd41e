#include "leases/screens/frmChargeFrom.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "leases/ChargeFrom.h"
#include "platform/qt/Text.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "ui_frmChargeFrom.h"

namespace leases::screens {

using platform::Date;
using platform::qt::ToScreen;

namespace {

platform::Currency TotalOf(const PreviewRows& rows) {
    platform::Currency total;
    for (const PreviewRow& row : rows)
        total += row.amount;
    return total;
}

} // namespace

frmChargeFrom::frmChargeFrom(LeaseTerms terms, Date since, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmChargeFrom>()),
      terms_(std::move(terms)),
      since_(since) {
    ui_->setupUi(this);
    const QString begins = ToScreen(terms_.dateNextDue.Get().ToText());
    ui_->lblQuestion->setText(tr("Rent of this lease is due from %1 on, but these books are kept "
                                 "since %2. From which day is it charged here?")
                                  .arg(begins, ToScreen(since_.ToText())));
    ui_->optSince->setText(
        tr("From the day since which the books are &kept, %1").arg(ToScreen(since_.ToText())));
    ui_->optStart->setText(tr("From its &first rent, due %1").arg(begins));
    ui_->dpFrom->SetDay(since_);
    for (QRadioButton* const option : {ui_->optSince, ui_->optStart, ui_->optDay})
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on) ShowAnswer();
        });
    connect(ui_->dpFrom, &QLineEdit::textChanged, this, &frmChargeFrom::ShowAnswer);
    connect(ui_->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui_->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ui_->buttons, &QDialogButtonBox::helpRequested, this,
            [this] { core::forms::ShowHelp(*this); });
    ui_->buttons->button(QDialogButtonBox::Ok)->setText(tr("&Save Lease"));
    ShowAnswer();
}

frmChargeFrom::~frmChargeFrom() = default;

std::optional<Date> frmChargeFrom::NextDue() const {
    if (ui_->optStart->isChecked()) return terms_.dateNextDue.Get();
    const auto from = ui_->optSince->isChecked() ? since_ : ui_->dpFrom->Day();
    if (!from || !from->IsSet()) return std::nullopt;
    return FirstDueFrom(terms_, *from);
}

void frmChargeFrom::ShowAnswer() {
    ui_->dpFrom->setEnabled(ui_->optDay->isChecked());
    std::optional<Date> nextDue;
    PreviewRows rows;
    QString missing = tr("Enter a day.");
    core::forms::Guarded([&] {
        try {
            const std::optional<Date> due = NextDue();
            if (due) rows = PreviewCharges(terms_, *due);
            nextDue = due;
        } catch (const platform::OverflowError&) {
            missing = tr("The calendar ends before that. Enter an earlier day.");
        }
    });
    ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(nextDue.has_value());
    ui_->lvwPreview->ShowPreview(rows);
    if (!nextDue) {
        ui_->lblSummary->setText(missing);
    } else if (rows.empty()) {
        ui_->lblSummary->setText(tr("Nothing is posted up to today. Rent is next due on %1.")
                                     .arg(ToScreen(nextDue->ToText())));
    } else {
        ui_->lblSummary->setText(tr("Rows that will be posted up to today: %1, %2 in all")
                                     .arg(rows.size())
                                     .arg(ToScreen(platform::FormatMoney(TotalOf(rows)))));
    }
}

std::optional<Date> AskChargeFrom(const LeaseTerms& terms, QWidget& form) {
    const Date since = ProposedChargeFrom(terms);
    if (!since.IsSet()) return Date();
    frmChargeFrom question(terms, since, &form);
    if (question.exec() != QDialog::Accepted) return std::nullopt;
    return question.NextDue();
}

} // namespace leases::screens

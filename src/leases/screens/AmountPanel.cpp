#include "leases/screens/AmountPanel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/binding/MoneyEdit.h"
#include "leases/screens/PreviewList.h"
#include "platform/qt/PressGuard.h"

namespace leases::screens {

namespace {

QPushButton* MakeButton(const QString& text, const QString& hint, const char* name) {
    auto* const button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(hint);
    button->setAutoDefault(false);
    button->setProperty(platform::qt::kTakesEveryPress, true);
    return button;
}

} // namespace

AmountPanel::AmountPanel(QWidget* parent)
    : QWidget(parent),
      received_(new core::binding::MoneyEdit(this)),
      earlier_(MakeButton(tr("Pay Ear&lier"), tr("Pay the highlighted charge before the one above"),
                          "cmdEarlier")),
      later_(MakeButton(tr("Pay Later"), tr("Pay the highlighted charge after the one below"),
                        "cmdLater")),
      part_(new QCheckBox(tr("A part of the rent &is enough"), this)),
      preview_(new PreviewList(this)) {
    received_->setObjectName(QStringLiteral("txtReceived"));
    received_->setMaximumWidth(130);
    received_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    received_->setToolTip(
        tr("Settles the ticked charges from the top; the last one is split, and a surplus becomes "
           "the tenant's credit"));
    part_->setObjectName(QStringLiteral("chkRentPart"));
    part_->setToolTip(
        tr("If ticked, a rent that is paid in part moves the next due date; otherwise only "
           "paying its rest does"));
    preview_->setObjectName(QStringLiteral("lvwPreview"));
    preview_->setMinimumHeight(130);
    auto* const label = new QLabel(tr("Amount recei&ved:"), this);
    label->setBuddy(received_);

    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(received_);
    row->addWidget(earlier_);
    row->addWidget(later_);
    row->addWidget(part_);
    row->addStretch();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(preview_);

    connect(received_, &QLineEdit::textChanged, this, &AmountPanel::Follow);
    connect(part_, &QCheckBox::toggled, this, &AmountPanel::Changed);
    connect(earlier_, &QPushButton::clicked, this, [this] { Q_EMIT MoveAsked(-1); });
    connect(later_, &QPushButton::clicked, this, [this] { Q_EMIT MoveAsked(1); });
    Follow();
}

bool AmountPanel::IsUsed() const {
    return !received_->text().trimmed().isEmpty();
}

std::optional<platform::Currency> AmountPanel::Received() const {
    return received_->Amount();
}

RentPart AmountPanel::Part() const {
    return part_->isChecked() ? RentPart::Paid : RentPart::Open;
}

void AmountPanel::ShowPreview(const PreviewRows& rows) {
    preview_->ShowPreview(rows);
}

void AmountPanel::Follow() {
    for (QWidget* const widget : std::initializer_list<QWidget*>{earlier_, later_, part_, preview_})
        widget->setVisible(IsUsed());
    Q_EMIT Changed();
}

} // namespace leases::screens

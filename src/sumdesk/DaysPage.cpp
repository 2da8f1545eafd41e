#include "sumdesk/DaysPage.h"

#include "platform/qt/Announce.h"
#include "platform/qt/Text.h"
#include "platform/values/Errors.h"
#include "sumdesk/DaySpan.h"
#include "ui_DaysPage.h"

namespace sumdesk {

using platform::Date;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

DaysPage::DaysPage(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::DaysPage>()) {
    ui_->setupUi(this);
    for (QLineEdit* const box :
         {static_cast<QLineEdit*>(ui_->dpFrom), static_cast<QLineEdit*>(ui_->dpTo)}) {
        connect(box, &QLineEdit::textChanged, ui_->lblSpan, &QLabel::clear);
        connect(box, &QLineEdit::returnPressed, this, &DaysPage::CountDays);
    }
    for (QLineEdit* const box : {static_cast<QLineEdit*>(ui_->dpStart), ui_->txtDays}) {
        connect(box, &QLineEdit::textChanged, ui_->lblAfter, &QLabel::clear);
        connect(box, &QLineEdit::returnPressed, this, &DaysPage::FindDate);
    }
    connect(ui_->chkBoth, &QCheckBox::toggled, ui_->lblSpan, &QLabel::clear);
    connect(ui_->cmdSpan, &QPushButton::clicked, this, &DaysPage::CountDays);
    connect(ui_->cmdAfter, &QPushButton::clicked, this, &DaysPage::FindDate);
}

DaysPage::~DaysPage() = default;

void DaysPage::CountDays() {
    Answer(*ui_->lblSpan, [this] {
        const Date from = ReadDay(FromScreen(ui_->dpFrom->text()), "first date");
        const Date to = ReadDay(FromScreen(ui_->dpTo->text()), "second date");
        const LastDay lastDay = ui_->chkBoth->isChecked() ? LastDay::Counted : LastDay::NotCounted;
        return Describe(from, to, lastDay);
    });
}

void DaysPage::FindDate() {
    Answer(*ui_->lblAfter, [this] {
        const Date start = ReadDay(FromScreen(ui_->dpStart->text()), "start date");
        return DescribeDayAfter(start, FromScreen(ui_->txtDays->text()));
    });
}

void DaysPage::Answer(QLabel& label, const std::function<std::string()>& work) {
    try {
        const std::string text = work();
        label.setText(ToScreen(text));
        calculator_->AddToTape(text);
        Q_EMIT TapeChanged();
    } catch (const platform::Error& fault) {
        label.setText(ToScreen(fault.what()));
    }
    platform::qt::Announce(label);
}

void DaysPage::Clear() {
    for (QLineEdit* const box : findChildren<QLineEdit*>())
        box->clear();
    ui_->dpFrom->setFocus();
}

} // namespace sumdesk

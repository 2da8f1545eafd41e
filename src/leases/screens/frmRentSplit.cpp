#include "leases/screens/frmRentSplit.h"

#include "core/RecordNotices.h"
#include "core/Settings.h"
#include "core/binding/ComboList.h"
#include "core/binding/DayErrors.h"
#include "core/forms/ErrorRoll.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "ui_frmRentSplit.h"

namespace leases::screens {

using core::binding::SelectByText;
using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kSplitKey = R"(SOFTWARE\Vestrel\Kestrom\RentSplit)";
constexpr std::string_view kAutoCalc = "AutoCalc";

} // namespace

frmRentSplit::frmRentSplit(QWidget* parent)
    : EntryForm(parent), ui_(std::make_unique<Ui::frmRentSplit>()) {
    ui_->setupUi(this);
    lines_ = {Line{ui_->dpDate1, ui_->cboCategory1, ui_->txtAmount1, ui_->txtDescription1,
                   ui_->optIsRent1},
              Line{ui_->dpDate2, ui_->cboCategory2, ui_->txtAmount2, ui_->txtDescription2,
                   ui_->optIsRent2}};
    Wire(tr("&Save"), tr("Replace the charge by the two parts (Enter)"), "SAVE");
    for (std::size_t part = 0; part < lines_.size(); ++part) {
        lines_[part].date->SetRequired(true);
        connect(lines_[part].amount, &QLineEdit::textChanged, this,
                [this, part] { Guarded([&] { AmountChanged(part); }); });
    }
}

frmRentSplit::~frmRentSplit() = default;

void frmRentSplit::Setup(std::int32_t idRentLog) {
    const auto split = ReadSplit(idRentLog);
    if (!split) {
        core::OneRecordFound(0);
        deleteLater();
        return;
    }
    split_ = *split;
    setWindowTitle(ToScreen(SplitCaption(split_.charge.rentClass)));
    Begin([this] { ShowSplit(); });
    ui_->txtAmount1->setFocus();
    ui_->txtAmount1->selectAll();
}

void frmRentSplit::ShowSplit() {
    ui_->chkAutoCalc->setChecked(core::GetRegFlag(kSplitKey, kAutoCalc, true));
    const RentLogEntry& charge = split_.charge;
    ui_->dpDate0->SetDay(charge.datePosted);
    ui_->cboCategory0->setText(ToScreen(charge.category));
    ui_->txtAmount0->SetAmount(charge.amount);
    ui_->txtDescription0->setText(ToScreen(charge.description));
    for (std::size_t part = 0; part < lines_.size(); ++part) {
        for (const std::string& word : SplitCategories(charge.rentClass))
            lines_[part].category->addItem(ToScreen(word));
        ShowPart(lines_[part], split_.parts[part]);
        lines_[part].isRent->setVisible(split_.IsPeriodRent());
    }
    ui_->lblIsRent->setVisible(split_.IsPeriodRent());
    lines_[split_.rentPart].isRent->setChecked(true);
    ShowDifference();
}

void frmRentSplit::ShowPart(const Line& line, const SplitPart& part) {
    line.date->SetDay(part.date.IsSet() ? part.date : platform::Today());
    SelectByText(*line.category, part.category, {.setText = true});
    line.amount->SetAmount(part.amount);
    line.description->setText(ToScreen(part.description));
    line.description->setCursorPosition(0);
}

SplitPart frmRentSplit::ReadPart(const Line& line) {
    return {line.date->Day().value_or(platform::Date()), FromScreen(line.category->currentText()),
            line.amount->Amount().value_or(platform::Currency()),
            FromScreen(line.description->text())};
}

/// The other part gets the remainder.
void frmRentSplit::AmountChanged(std::size_t part) {
    if (Loading()) return;
    const auto amount = lines_[part].amount->Amount();
    if (amount && ui_->chkAutoCalc->isChecked()) {
        Quietly([&] { lines_[1 - part].amount->SetAmount(split_.Rest(*amount)); });
    }
    ShowDifference();
}

void frmRentSplit::ShowDifference() {
    ReadParts();
    const platform::Currency missing = split_.Missing();
    const QString amount =
        ToScreen(platform::FormatMoney(missing < platform::Currency() ? -missing : missing));
    ui_->lblDifference->setText(missing.IsZero() ? tr("The parts add up to the charge.")
                                : missing > platform::Currency()
                                    ? tr("The parts are %1 less than the charge.").arg(amount)
                                    : tr("The parts are %1 more than the charge.").arg(amount));
}

std::vector<std::string> frmRentSplit::Errors() {
    std::vector<std::string> lines;
    for (const Line& line : lines_) {
        const std::string amount = FromScreen(line.amount->text());
        if (!line.amount->Amount())
            lines.push_back("\"" + amount + "\" is not an amount of money.");
        if (!line.date->IsValid()) {
            lines.push_back(core::binding::NotADay(*line.date));
        } else if (!line.date->Day()->IsSet()) {
            lines.emplace_back("A date must be entered.");
        }
    }
    return lines;
}

void frmRentSplit::ReadParts() {
    for (std::size_t part = 0; part < lines_.size(); ++part)
        split_.parts[part] = ReadPart(lines_[part]);
    split_.rentPart = ui_->optIsRent2->isChecked() ? 1 : 0;
}

bool frmRentSplit::Agreed() {
    ReadParts();
    return !split_.LosesRent() ||
           platform::TheDialogs().AskYesNo(
               "Confirm Split",
               "The part that stays rent is 0.00. When the other part is paid,\n"
               "the next due date will not move.\n"
               "Do you want to continue?",
               platform::Icon::Question);
}

void frmRentSplit::Store() {
    ReadParts();
    const auto parts = SaveSplit(split_);
    Q_EMIT Saved(split_.idRentLog, parts);
}

void frmRentSplit::closeEvent(QCloseEvent* event) {
    core::SetRegFlag(kSplitKey, kAutoCalc, ui_->chkAutoCalc->isChecked());
    EntryForm::closeEvent(event);
}

} // namespace leases::screens

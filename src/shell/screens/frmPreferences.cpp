#include "shell/screens/frmPreferences.h"

#include <QPushButton>
#include <QRegularExpressionValidator>

#include "core/Preferences.h"
#include "core/binding/ComboList.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "ui_frmPreferences.h"

namespace shell::screens {

frmPreferences::frmPreferences(QWidget* parent)
    : core::forms::Form(parent, core::FormSizing::Fixed),
      ui_(std::make_unique<Ui::frmPreferences>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    core::binding::FillFromCommaList(*ui_->cboAutosize, "Manual,Fit Grid,Fit Text");
    core::binding::FillFromCommaList(*ui_->cboAppearance, "System,Light,Dark");
    ui_->cmdAction->Apply().hide();
    connect(ui_->cmdAction, &core::forms::ActionBar::CloseClicked, this,
            &frmPreferences::SaveAndClose);
    connect(ui_->cmdAction, &core::forms::ActionBar::CancelClicked, this, &QWidget::close);
    connect(ui_->cmdAction, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

frmPreferences::~frmPreferences() = default;

/// Calls `flag` and `days` with each control and its preference.
template <class Flag, class Days>
void frmPreferences::ForEach(Flag flag, Days days) {
    core::PreferenceValues& values = core::Preferences();
    flag(*ui_->chkEnableExpert, values.EnableExpert);
    flag(*ui_->chkShowSplash, values.ShowSplash);
    flag(*ui_->chkConfirmDelete, values.ConfirmDelete);
    flag(*ui_->chkConfirmCancel, values.ConfirmCancel);
    flag(*ui_->chkConfirmMoves, values.ConfirmMoves);
    flag(*ui_->chkColWrap, values.ColWrap);
    flag(*ui_->chkLateRent, values.LateRent);
    flag(*ui_->chkLateMortgage, values.LateMortgage);
    flag(*ui_->chkLeaseExpiring, values.LeaseExpiring);
    days(*ui_->txtLeaseExpiringDays, values.LeaseExpiringDays);
    flag(*ui_->chkMtgEscrow, values.MtgEscrow);
    days(*ui_->txtMtgEscrowDays, values.MtgEscrowDays);
    flag(*ui_->chkInsRenew, values.InsRenew);
    days(*ui_->txtInsRenewDays, values.InsRenewDays);
    flag(*ui_->chkHOAPmt, values.HOAPmt);
    days(*ui_->txtHOAPmtDays, values.HOAPmtDays);
    flag(*ui_->chkWOStatus, values.WOStatus);
    days(*ui_->txtKeepDays, values.KeepDays);
}

void frmPreferences::Setup() {
    ui_->cboAutosize->setCurrentIndex(core::Preferences().AutoSize);
    ui_->cboAppearance->setCurrentIndex(core::Preferences().Appearance);
    const auto* const digits =
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this);
    ForEach([](QCheckBox& box, bool value) { box.setChecked(value); },
            [digits](QLineEdit& box, std::int32_t value) {
                box.setValidator(digits);
                box.setText(QString::number(value));
            });
    Open();
}

void frmPreferences::SaveAndClose() {
    const bool taken = core::forms::Guarded([this] {
        const int sizing = ui_->cboAutosize->currentIndex();
        if (sizing >= 0) core::Preferences().AutoSize = sizing;
        const int appearance = ui_->cboAppearance->currentIndex();
        if (appearance >= 0) core::Preferences().Appearance = appearance;
        ForEach([](const QCheckBox& box, bool& value) { value = box.isChecked(); },
                [](const QLineEdit& box, std::int32_t& value) {
                    value = platform::StrToInt16(platform::qt::FromScreen(box.text()));
                });
    });
    if (!taken) return;
    platform::qt::ApplyAppearance(platform::qt::Appearance{core::Preferences().Appearance});
    if (!core::SavePreferences()) {
        platform::TheDialogs().ShowMessage(
            "Preferences", "The preferences could not be saved. They apply until the program ends.",
            platform::Icon::Exclamation);
    }
    close();
}

} // namespace shell::screens

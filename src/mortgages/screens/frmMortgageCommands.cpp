#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "core/forms/ErrorRoll.h"
#include "mortgages/screens/MtgLog.h"
#include "mortgages/screens/frmMortgage.h"
#include "mortgages/screens/frmMortgageAdjust.h"
#include "ui_frmMortgage.h"

namespace mortgages::screens {

using core::forms::Guarded;

QAction* frmMortgage::AddAction(const char* name, const QString& text,
                                const std::function<void()>& work) {
    QMenu* const menu = layout()->menuBar()->findChild<QMenu*>(QStringLiteral("mnuMortgage"));
    QAction* const action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, [work] { Guarded(work); });
    return action;
}

void frmMortgage::MakeMenu() {
    auto* const bar = new QMenuBar(this);
    QMenu* const menu = bar->addMenu(tr("&Mortgage"));
    menu->setParent(bar, menu->windowFlags());
    menu->setObjectName(QStringLiteral("mnuMortgage"));
    layout()->setMenuBar(bar);
    struct Item {
        MortgageCommand command;
        const char* name;
        QString text;
    };
    menu->setToolTipsVisible(true);
    changeRate_ = AddAction("mnuChangeRate", tr("Change &Rate..."),
                            [this] { OpenAdjustment(&frmMortgageAdjust::SetupInt); });
    changeRate_->setToolTip(tr("A new rate of an adjustable loan, from a payment on"));
    changeTerms_ = AddAction("mnuChangeTerms", tr("Change the &Terms from a Period on..."),
                             [this] { OpenAdjustment(&frmMortgageAdjust::SetupTerms); });
    changeTerms_->setToolTip(tr("Another extra principal every month, from a payment on"));
    changeBalance_ = AddAction("mnuChangeBalance", tr("Adjust to Lender's &Balance..."),
                               [this] { OpenAdjustment(&frmMortgageAdjust::SetupBalance); });
    changeBalance_->setToolTip(tr("When the lender's balance is lower than the schedule's"));
    takeBack_ = AddAction("mnuTakeBack", tr("Remove &Extra Principal..."),
                          [this] { OpenAdjustment(&frmMortgageAdjust::SetupTakeBack); });
    takeBack_->setToolTip(tr("Removes an entry from the schedule, for example a mistyped balance"));
    menu->addSeparator();
    for (const Item& item :
         {Item{MortgageCommand::RollForward, "mnuRollFOrward", tr("Roll &Forward...")},
          Item{MortgageCommand::Reprocess, "mnuReprocess", tr("Re&process...")},
          Item{MortgageCommand::Payoff, "mnuPayoff", tr("Pay &Off...")}}) {
        commands_[static_cast<std::size_t>(item.command)] =
            AddAction(item.name, item.text, [this, command = item.command] { Run(command); });
    }
}

/// Commands work on the stored mortgage, so changes are saved first; returns true if everything is
/// saved.
bool frmMortgage::SaveFirst() {
    if (!Dirty()) return true;
    saved_ = false;
    Apply();
    return saved_;
}

void frmMortgage::Run(MortgageCommand command) {
    if (!AskWhether(command) || !SaveFirst()) return;
    Perform([&] {
        RunCommand(command, Id());
        const LoadingGuard loading(*this);
        Load();
    });
}

void frmMortgage::MoveDueDate(int periods) {
    if (AskToMoveDueDate(periods > 0)) AdjustLoan(MovePeriod{periods});
}

void frmMortgage::OpenAdjustment(void (frmMortgageAdjust::*setup)(const clsMortgage& loan)) {
    auto* const form = new frmMortgageAdjust(this);
    connect(form, &frmMortgageAdjust::Given, this, &frmMortgage::AdjustLoan);
    (form->*setup)(loan_);
}

/// Keeps the adjustment until the save, which applies it to the loan as it is stored then.
void frmMortgage::AdjustLoan(const Adjustment& adjustment) {
    adjustments_.push_back(adjustment);
    Recalculate();
    MarkDirty();
}

void frmMortgage::MakeChangesOn(clsMortgage& loan) const {
    ReadTerms(loan);
    loan.ReCalc();
    for (const Adjustment& adjustment : adjustments_)
        Adjust(loan, adjustment);
}

/// The stored mortgage may have changed, by a payment for example: the screen follows it, and
/// unsaved changes stay. Without unsaved changes the form loads the row again.
void frmMortgage::FollowOthers(const core::binding::Controls& /*touched*/) {
    if (!Dirty()) return;
    platform::Recordset row;
    FindRow(row);
    if (row.Eof()) return;
    stored_ = clsMortgage();
    stored_.LoadRS(row);
    Recalculate();
    ucMtgLog_->Load(Id());
}

} // namespace mortgages::screens

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "core/forms/ErrorRoll.h"
#include "mortgages/MortgageUpkeep.h"
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
    changeRate_ = AddAction("mnuChangeRate", tr("Change &Rate..."), [this] { OpenRateChange(); });
    changeBalance_ = AddAction("mnuChangeBalance", tr("Adjust to Lender's &Balance..."),
                               [this] { OpenBalanceChange(); });
    menu->addSeparator();
    for (const Item& item :
         {Item{MortgageCommand::RollForward, "mnuRollFOrward", tr("Roll &Forward...")},
          Item{MortgageCommand::Reprocess, "mnuReprocess", tr("Re&process...")},
          Item{MortgageCommand::Payoff, "mnuPayoff", tr("Pay &Off...")}}) {
        commands_[static_cast<std::size_t>(item.command)] =
            AddAction(item.name, item.text, [this, command = item.command] { Run(command); });
    }
}

/// A command works on what is stored, so what was changed is saved before it; true when all is.
bool frmMortgage::SaveFirst() {
    if (!Dirty()) return true;
    saved_ = false;
    Apply();
    return saved_;
}

void frmMortgage::Run(MortgageCommand command) {
    if (!AskWhether(command) || !SaveFirst()) return;
    RunCommand(command, Id());
    const LoadingGuard loading(*this);
    Load();
}

void frmMortgage::MoveDueDate(int periods) {
    if (!AskToMoveDueDate(periods > 0)) return;
    loan_.SetCurrentPeriod(loan_.CurrentPeriod() + periods);
    loanChanged_ = true;
    ShowCurrent();
    MarkDirty();
}

void frmMortgage::OpenRateChange() {
    auto* const form = new frmMortgageAdjust(this);
    connect(form, &frmMortgageAdjust::RateGiven, this, [this](int period, double rate) {
        loan_.SetRate(period, rate);
        loanChanged_ = true;
        Reckon();
        MarkDirty();
    });
    form->SetupInt(loan_.CurrentPeriod(), loan_.GetRate(0));
}

void frmMortgage::OpenBalanceChange() {
    auto* const form = new frmMortgageAdjust(this);
    connect(form, &frmMortgageAdjust::BalanceGiven, this,
            [this](platform::Date day, platform::Currency balance, double rate) {
                loan_.BalanceMtg(day, balance.ToDouble(), rate);
                loanChanged_ = true;
                Reckon();
                MarkDirty();
            });
    form->SetupBalance(platform::Currency::FromDouble(loan_.GetPV(0)), loan_.NextDue(),
                       loan_.OrigRate());
}

/// A payment has moved the stored period on, here or elsewhere: the stored mortgage is reckoned
/// anew at once, so that it is right however this screen ends, and what is shown follows it.
void frmMortgage::FollowPayment() {
    platform::Recordset row;
    FindRow(row);
    if (row.Eof()) return;
    clsMortgage stored;
    stored.LoadRS(row);
    if (stored.CurrentPeriod() == storedPeriod_) return;
    RefreshMortgage(Id());
    if (!Dirty()) return Load();
    FindRow(row);
    loan_.LoadRS(row);
    storedPeriod_ = loan_.CurrentPeriod();
    ReadTerms();
    Reckon();
    ucMtgLog_->Load(Id());
}

} // namespace mortgages::screens

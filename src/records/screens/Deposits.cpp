#include "records/screens/Deposits.h"

#include <QTabBar>
#include <array>

#include "core/RecordKinds.h"
#include "core/forms/PanelCommand.h"
#include "records/screens/frmDeposit.h"

namespace records::screens {

using core::forms::PerformOn;

namespace {

constexpr std::string_view kGridKey = "frmBuilding.Deposit";

} // namespace

Deposits::Deposits(QWidget* parent)
    : RecordList(parent),
      tabs_(new QTabBar(this)),
      token_([this](core::RecordKind kind, std::int16_t, std::int32_t) {
          if (kind == core::kDeposit) Reload();
      }) {
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    for (const QString& title : {tr("All"), tr("Global"), tr("Building"), tr("Unit")})
        tabs_->addTab(title);
    SetHead(tabs_);
    List().setAccessibleName(tr("Deposits"));
    connect(tabs_, &QTabBar::currentChanged, this, &Deposits::Reload);
    connect(this, &RecordList::AddAsked, this,
            [this] { PerformOn(*this, [this] { OpenDeposit(0, Scope(), place_); }); });
    connect(this, &RecordList::EditAsked, this, [this](std::int32_t id) {
        PerformOn(*this, [&] { OpenDeposit(id, Scope(), place_); });
    });
    connect(this, &RecordList::DeleteAsked, this,
            [this](std::int32_t id) { PerformOn(*this, [id] { DeleteDeposit(id); }); });
    Load({});
}

void Deposits::Load(const DepositPlace& place) {
    place_ = place;
    Reload();
}

void Deposits::Reload() {
    const bool isSaved = place_.idBuilding != 0;
    Allow(isSaved, isSaved, isSaved);
    if (isSaved) {
        ShowRows(OpenDeposits(Scope(), place_), kGridKey);
    } else {
        ShowNothing(tr("Press Apply to save this record first."));
    }
}

DepositScope Deposits::Scope() const {
    constexpr std::array kScopes = {DepositScope::All, DepositScope::Global, DepositScope::Building,
                                    DepositScope::Unit};
    return kScopes[static_cast<std::size_t>(std::max(0, tabs_->currentIndex()))];
}

} // namespace records::screens

#include "records/screens/RelatedDBm.h"

#include <QSignalBlocker>
#include <QTabBar>

#include "core/RecordKinds.h"
#include "platform/qt/Text.h"

namespace records::screens {

using platform::qt::ToScreen;

RelatedDBm::RelatedDBm(QWidget* parent) : RelatedPanel(parent), tabs_(new QTabBar(this)) {
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    SetHead(tabs_);
    connect(tabs_, &QTabBar::currentChanged, this, &RelatedDBm::ShowTab);
    Load(core::kNone, 0);
}

void RelatedDBm::Load(core::RecordKind dbType, std::int32_t id) {
    const bool isNewKind = tabs_->count() == 0 || dbType != owner_.kind;
    owner_ = {dbType, id};
    if (isNewKind) {
        const QSignalBlocker quiet(tabs_);
        while (tabs_->count() > 0)
            tabs_->removeTab(0);
        for (const RelatedList& list : TabbedLists(dbType))
            tabs_->addTab(ToScreen(list.caption));
        if (tabs_->count() == 0) tabs_->addTab(ToScreen(kNoDbType));
    }
    ShowTab();
}

void RelatedDBm::ShowTab() {
    const auto lists = TabbedLists(owner_.kind);
    const auto tab = static_cast<std::size_t>(std::max(0, tabs_->currentIndex()));
    List().setAccessibleName(tabs_->tabText(tabs_->currentIndex()).remove(QLatin1Char('&')));
    ShowList(tab < lists.size() ? &lists[tab] : nullptr, owner_);
}

} // namespace records::screens

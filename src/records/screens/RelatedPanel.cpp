#include "records/screens/RelatedPanel.h"

#include <algorithm>

#include "core/RecordKinds.h"
#include "core/forms/PanelCommand.h"
#include "platform/qt/Text.h"
#include "removal/DeleteRecord.h"

namespace records::screens {

using core::forms::PerformOn;

RelatedPanel::RelatedPanel(QWidget* parent)
    : RecordList(parent),
      token_([this](core::RecordKind kind, std::int16_t, std::int32_t) { Heard(kind); }) {
    connect(this, &RecordList::AddAsked, this, [this] { Open(0); });
    connect(this, &RecordList::EditAsked, this, &RelatedPanel::Open);
    connect(this, &RecordList::DeleteAsked, this, &RelatedPanel::Remove);
}

void RelatedPanel::ShowList(const RelatedList* list, const RelatedOwner& owner) {
    if (list == list_ && owner == owner_) return; // it keeps itself current
    list_ = list;
    owner_ = owner;
    Reload();
}

void RelatedPanel::Reload() {
    if (!list_ || owner_.id == 0) {
        Allow(false, false, false);
        ShowNothing(list_ ? tr("Press Apply to save this record first.") : QString());
        return;
    }
    const bool canOpen = core::HasEditor(list_->kind);
    try {
        ShowRows(OpenRelated(*list_, owner_), list_->gridKey);
        Allow(canOpen, canOpen, true);
    } catch (const std::exception& failure) {
        Allow(canOpen, false, false);
        ShowNothing(tr("This list can't be read: %1").arg(platform::qt::ToScreen(failure.what())));
    }
}

void RelatedPanel::Open(std::int32_t id) {
    PerformOn(*this, [&] {
        const core::EditRequest request = RelatedRequest(*list_, owner_, id);
        core::EditRecord(request.kind, request.id, request.parent1, request.parent2,
                         request.parent3);
    });
}

void RelatedPanel::Remove(std::int32_t id) {
    PerformOn(*this, [&] { removal::DeleteRecord(list_->kind, id); });
}

void RelatedPanel::Heard(core::RecordKind kind) {
    if (list_ && std::ranges::find(list_->shows, kind) != list_->shows.end()) Reload();
}

} // namespace records::screens

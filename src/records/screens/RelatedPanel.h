#pragma once

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/grid/RecordList.h"
#include "records/RelatedLists.h"

namespace records::screens {

/// The common part of RelatedDBm and RelatedDBs: shows one list of an owner and refreshes it when
/// its records change.
class RelatedPanel : public core::grid::RecordList {
    Q_OBJECT

  protected:
    explicit RelatedPanel(QWidget* parent);

    /// Shows the records of an owner; shows nothing while the owner has no id, or no list.
    void ShowList(const RelatedList* list, const RelatedOwner& owner);

  private:
    void Reload();
    void Open(std::int32_t id);
    void Remove(std::int32_t id);
    void Heard(core::RecordKind kind);

    const RelatedList* list_ = nullptr;
    RelatedOwner owner_;
    core::NotifyToken token_;
};

} // namespace records::screens

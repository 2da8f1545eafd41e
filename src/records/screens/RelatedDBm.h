#pragma once

#include "core/RecordKinds.h"
#include "records/screens/RelatedPanel.h"

class QTabBar;

namespace records::screens {

/// The lists of everything that belongs to a building or a unit, a tab for each.
class RelatedDBm : public RelatedPanel {
    Q_OBJECT

  public:
    explicit RelatedDBm(QWidget* parent = nullptr);

    /// Shows the lists of a record; the tab stays selected if the kind doesn't change.
    void Load(core::RecordKind dbType, std::int32_t id);

  private:
    void ShowTab();

    QTabBar* tabs_;
    RelatedOwner owner_;
};

} // namespace records::screens

#pragma once

#include "records/screens/RelatedPanel.h"

class QTabBar;

namespace records::screens {

/// What hangs from a building or a unit, a tab for each list.
class RelatedDBm : public RelatedPanel {
    Q_OBJECT

  public:
    explicit RelatedDBm(QWidget* parent = nullptr);

    /// Shows the lists of a record; the tab stays where the kind does.
    void Load(std::int16_t dbType, std::int32_t id);

  private:
    void ShowTab();

    QTabBar* tabs_;
    RelatedOwner owner_;
};

} // namespace records::screens

#pragma once

#include "core/RecordKinds.h"
#include "records/screens/RelatedPanel.h"

class QLabel;

namespace records::screens {

/// The list of what belongs to a tenant, a work order or an appliance.
class RelatedDBs : public RelatedPanel {
    Q_OBJECT

  public:
    explicit RelatedDBs(QWidget* parent = nullptr);

    /// Shows the list of a record.
    void Load(core::RecordKind dbType, std::int32_t id);

  private:
    QLabel* caption_;
};

} // namespace records::screens

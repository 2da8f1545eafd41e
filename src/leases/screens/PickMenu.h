#pragma once

#include <QMenu>
#include <functional>

#include "leases/screens/ChargeList.h"

namespace leases::screens {

/// Adds the items that select all charges, the rents, or the others; their names begin with
/// `prefix`: "mnuSelect" makes mnuSelectAll, mnuSelectRent, mnuSelectOther.
void AddPickMenu(QMenu& menu, const QString& prefix,
                 const std::function<void(ChargePick pick)>& picked);

} // namespace leases::screens

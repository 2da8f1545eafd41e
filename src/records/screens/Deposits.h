#pragma once

#include "core/NotifyAll.h"
#include "core/grid/RecordList.h"
#include "records/DepositTemplates.h"

class QTabBar;

namespace records::screens {

/// The deposit templates that apply to a lease of a building's unit.
class Deposits : public core::grid::RecordList {
    Q_OBJECT

  public:
    explicit Deposits(QWidget* parent = nullptr);

    /// Shows the templates for a building and one of its units.
    void Load(const DepositPlace& place);

  private:
    void Reload();
    DepositScope Scope() const;

    QTabBar* tabs_;
    DepositPlace place_;
    core::NotifyToken token_;
};

} // namespace records::screens

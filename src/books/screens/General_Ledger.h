#pragma once

#include <cstdint>

#include "books/LedgerView.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/grid/RecordList.h"

class QComboBox;
class QRadioButton;

namespace books::screens {

/// The transactions of an account, a tenant or a unit, newest first, with buttons to add, open and
/// delete them. It refreshes itself.
class General_Ledger : public core::grid::RecordList {
    Q_OBJECT

  public:
    explicit General_Ledger(QWidget* parent = nullptr);

    /// Sets whose transactions to show: an account, a tenant or a unit with its building. The panel
    /// is disabled while the id is 0.
    void SetParty(core::RecordKind dbType, std::int32_t id, std::int32_t idBuilding = 0);
    void Refresh();

  private:
    void MakeHead();
    void PeriodChosen();
    void ScopeChosen();
    void Add();
    void NotifyUpdate(core::RecordKind kind);

    LedgerView view_;
    QComboBox* cboDays_;
    QRadioButton* optBuilding_;
    QRadioButton* optUnit_;
    core::NotifyToken token_;
};

} // namespace books::screens

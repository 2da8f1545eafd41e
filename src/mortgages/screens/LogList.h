#pragma once

#include <cstdint>
#include <vector>

#include "core/grid/LedgerList.h"
#include "mortgages/MortgageCodes.h"

namespace mortgages::screens {

/// One row of the mortgage log as a list shows it: its day, texts, then amounts.
struct LogLine {
    std::int32_t idMortgageLog = 0;
    LogFlags flags = LogFlags::Ordinary;
    platform::Date date;
    std::vector<QString> texts;
    std::vector<platform::Currency> amounts;
    bool ticked = false;
};

/// Rows of a mortgage's log to look at and choose from.
class LogList : public core::grid::LedgerList {
    Q_OBJECT

  public:
    explicit LogList(QWidget* parent = nullptr);

    /// What the columns are called: the day, `texts` of words, the others of money. The one at
    /// `wide` takes the room that is left.
    void SetColumns(const QStringList& captions, int texts, int wide);
    /// The row that is current stays so.
    void ShowLines(const std::vector<LogLine>& lines);
    /// Sets the ticks alone, in the order of the lines shown.
    void ShowTicks(const std::vector<bool>& ticks);

    /// Selects exactly the base payments, or exactly the others.
    void SelectBasePayments(bool basePayments);

  Q_SIGNALS:
    /// A person ticked the line of this number, or took the tick out.
    void Ticked(std::size_t line, bool on);

  private:
    static std::size_t LineOf(const QTreeWidgetItem& row);
};

} // namespace mortgages::screens

#pragma once

#include <cstdint>
#include <vector>

#include "core/grid/LedgerList.h"
#include "mortgages/MortgageCodes.h"

namespace mortgages::screens {

/// A line of the list: a row of the mortgage log as its date, texts and amounts.
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

    /// Sets the captions of the columns: the date, `texts` text columns, then amounts. The column
    /// `wide` takes the remaining width.
    void SetColumns(const QStringList& captions, int texts, int wide);
    /// Shows these lines. The current row stays current.
    void ShowLines(const std::vector<LogLine>& lines);
    /// Sets only the ticks, in the order of the lines.
    void ShowTicks(const std::vector<bool>& ticks);

    /// Selects exactly the base payments, or exactly the other rows.
    void SelectBasePayments(bool basePayments);

  Q_SIGNALS:
    /// Emitted when the user ticks or unticks a line.
    void Ticked(std::size_t line, bool on);

  private:
    static std::size_t LineOf(const QTreeWidgetItem& row);
};

} // namespace mortgages::screens

#pragma once

#include <QTreeWidget>
#include <cstdint>
#include <vector>

#include "mortgages/MortgageCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

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

/// Rows of the log to look at and choose from; several can be selected, and with ticks each has a
/// check box. A click on a caption sorts by it.
class LogList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit LogList(QWidget* parent = nullptr);

    /// What the columns are called: the day, `texts` of words, the others of money. The one at
    /// `wide` takes the room that is left.
    void SetColumns(const QStringList& captions, int texts, int wide);
    void SetTicks(bool ticks) { ticks_ = ticks; }
    /// The row that is current stays so.
    void ShowLines(const std::vector<LogLine>& lines);
    /// Sets the ticks alone, in the order of the lines shown.
    void ShowTicks(const std::vector<bool>& ticks);

    /// The selected rows, or else the current one.
    std::vector<std::int32_t> SelectedIds() const;
    /// The row in focus, 0 without one.
    std::int32_t CurrentId() const;
    /// Selects exactly the base payments, or exactly the others.
    void SelectBasePayments(bool basePayments);

  Q_SIGNALS:
    /// A person ticked the line of this number, or took the tick out.
    void Ticked(std::size_t line, bool on);
    /// A double click or Enter on a row.
    void RowChosen(std::int32_t id);
    void DeleteAsked();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int wide_ = 0;
    bool ticks_ = false;
    bool filling_ = false;
};

} // namespace mortgages::screens

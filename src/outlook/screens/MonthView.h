#pragma once

#include <QTableWidget>
#include <map>

#include "outlook/CashFlow.h"

namespace outlook::screens {

/// A month as a page of a calendar: six weeks, with the entries of each day. The weeks begin on the
/// weekday that is usual in the machine's region.
class MonthView : public QTableWidget {
    Q_OBJECT

  public:
    explicit MonthView(QWidget* parent = nullptr);

    /// Shows the month of `day`, with `day` as the current one.
    void ShowMonth(platform::Date day, platform::Date today,
                   const std::map<platform::Date, CalendarDay>& days);
    /// Returns the day of the current cell.
    platform::Date CurrentDay() const;

  Q_SIGNALS:
    /// Emitted by a double click or Enter on a day.
    void DayChosen(platform::Date day);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void ShowDay(QTableWidgetItem& cell, platform::Date day, bool isInMonth, bool isToday,
                 const CalendarDay* what);
    void ChooseCurrent();
    void ElideLines();

    platform::Date first_;
};

} // namespace outlook::screens

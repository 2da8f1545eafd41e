#pragma once

#include <QWidget>
#include <string_view>

#include "mortgages/ViewSettings.h"
#include "mortgages/clsMortgage.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace core::grid {
class Grid;
}

namespace mortgages::screens {

class YearChart;

/// The page of a loan's schedule: its rows as a table, its years as a chart, and the options of
/// both, which are remembered.
class AmortPage : public QWidget {
    Q_OBJECT

  public:
    explicit AmortPage(QWidget* parent = nullptr);

    void Show(const clsMortgage& mortgage);
    /// Shows another schedule of the loan under `caption`, with a button to return to the loan's
    /// own.
    void ShowInstead(const clsMortgage& mortgage, const QString& caption);
    /// Shows why there is no schedule, or only part of one; an empty reason hides the line.
    void ShowFault(std::string_view reason);

  Q_SIGNALS:
    /// Emitted when the user asks for the loan's own schedule again.
    void OwnScheduleAsked();

  private:
    void MakeCaption();
    void MakeOptions();
    QCheckBox* MakeCheck(const QString& text, const QString& hint, const char* name, bool on);
    void Choose();
    void ShowAll();
    void UpdateChart();

    ViewSettings settings_;
    clsMortgage mortgage_;
    core::grid::Grid* table_;
    YearChart* chart_;
    QLabel* fault_;
    QWidget* instead_;
    QLabel* caption_;
    QCheckBox* detail_ = nullptr;
    QCheckBox* yearToDate_ = nullptr;
    QCheckBox* cumulative_ = nullptr;
    QCheckBox* legend_ = nullptr;
    QComboBox* type_ = nullptr;
};

} // namespace mortgages::screens

#pragma once

#include <QWidget>
#include <string_view>

#include "mortgages/ViewSettings.h"
#include "mortgages/clsMortgage.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QTableView;

namespace mortgages::screens {

class AmortModel;
class YearChart;

/// The page of a loan's schedule: its rows as a table, its years as a chart, and what of both is
/// looked at, which is remembered.
class AmortPage : public QWidget {
    Q_OBJECT

  public:
    explicit AmortPage(QWidget* parent = nullptr);

    void Show(const clsMortgage& mortgage);
    /// Why there is no schedule, or only a part of it; empty when all is well.
    void ShowFault(std::string_view reason);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void FitColumns();
    void MakeOptions();
    QCheckBox* MakeCheck(const QString& text, const QString& hint, const char* name, bool on);
    void Choose();
    void ShowAll();
    void UpdateChart();

    ViewSettings settings_;
    clsMortgage mortgage_;
    AmortModel* model_;
    QTableView* table_;
    YearChart* chart_;
    QLabel* fault_;
    QCheckBox* detail_ = nullptr;
    QCheckBox* yearToDate_ = nullptr;
    QCheckBox* cumulative_ = nullptr;
    QCheckBox* legend_ = nullptr;
    QComboBox* type_ = nullptr;
};

} // namespace mortgages::screens

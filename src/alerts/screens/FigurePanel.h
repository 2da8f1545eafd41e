#pragma once

#include <QFrame>

#include "platform/qt/charts/SeriesChart.h"

class QLabel;
class QToolButton;

namespace alerts::screens {

/// One figure of the picture: its title, which opens the report with the details, a sentence that
/// describes the figure, and its chart.
class FigurePanel : public QFrame {
    Q_OBJECT

  public:
    /// `name` is the object name of the panel; its parts are named after it.
    FigurePanel(const QString& name, const QString& title, QWidget* parent);

    platform::qt::SeriesChart& Chart() { return *chart_; }
    /// Shows the sentence above the chart.
    void ShowFigure(const QString& sentence);
    /// Shows a sentence instead of the chart, because there is nothing to draw.
    void ShowOnly(const QString& sentence);

  Q_SIGNALS:
    void ReportAsked();

  private:
    QToolButton* title_;
    QLabel* sentence_;
    platform::qt::SeriesChart* chart_;
};

} // namespace alerts::screens

#pragma once

#include <exception>
#include <map>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"
#include "outlook/CashFlow.h"

namespace Ui {
class frmLookAhead;
}

namespace outlook::screens {

class ForecastRun;

/// Shows the next days as a list, a calendar and a chart: the daily run on a copy of the
/// books. The books themselves stay as they are.
class frmLookAhead : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmLookAhead(QWidget* parent = nullptr);
    ~frmLookAhead() override;

    /// Shows the screen and looks ahead.
    void Setup();

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void SetUpControls();
    void Connect();
    void Look();
    void Take(const std::shared_ptr<const Forecast>& forecast);
    void TellFailure(const std::exception_ptr& failure);
    void ShowRunning(bool isRunning);

    void ShowForecast();
    void ShowSummary();
    void ShowList();
    void ShowChart();
    void ShowMonth(platform::Date day);
    void TurnMonth(int step);
    void OpenRow(std::int32_t number) const;
    void ShowDayInList(platform::Date day);

    std::unique_ptr<Ui::frmLookAhead> ui_;
    ForecastRun* run_;
    std::shared_ptr<const Forecast> forecast_;
    /// The part of the forecast that is shown.
    Forecast shown_;
    std::map<platform::Date, CalendarDay> days_;
    /// The day of the calendar's page.
    platform::Date day_;
};

} // namespace outlook::screens

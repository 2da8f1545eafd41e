#pragma once

#include <memory>

#include "core/forms/Form.h"

namespace Ui {
class frmReports;
}

namespace reports {
struct ReportDef;
}

namespace reports::screens {

/// The catalogue: the user picks a report, answers what it asks, and runs it.
class frmReports : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmReports(QWidget* parent = nullptr);
    ~frmReports() override;

    /// Shows the catalogue, on the tab of the financial reports.
    void Setup();

  protected:
    void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id) override;

  private:
    void MakeTabs();
    void Connect();
    void ShowTab();
    void Choose();
    void ShowQuestions(ReportDef& report);
    void ShowDates(const ReportDef& report);
    void EnableDates();
    /// Stores the answers on screen with the report they belong to; false if a date is not valid.
    bool StoreAnswers();
    bool StoreDates(ReportDef& report);
    void Run();

    std::unique_ptr<Ui::frmReports> ui_;
    int shown_ = 0; ///< the report whose questions are on screen, 0 for none
};

} // namespace reports::screens

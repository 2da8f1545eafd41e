#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"

namespace Ui {
class frmReports;
}

namespace reports {
struct ReportDef;
}

namespace reports::screens {

/// The catalogue: the user chooses a report, answers its questions, and runs it.
class frmReports : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmReports(QWidget* parent = nullptr);
    ~frmReports() override;

    /// Shows the catalogue, on the tab of the financial reports.
    void Setup();
    /// Selects a report by its number in the catalogue.
    void Select(int report);

  protected:
    /// Keeps the answers for the rest of the session.
    void closeEvent(QCloseEvent* event) override;
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void MakeTabs();
    void Connect();
    void ShowTab();
    void Choose();
    void ShowQuestions(ReportDef& report);
    void ShowDates(const ReportDef& report);
    void EnableDates();
    /// Stores the answers on screen with their report; returns false if a date is not valid.
    bool StoreAnswers();
    /// Stores them in a report; returns the errors in the dates, which then stay unchanged.
    std::vector<std::string> StoreIn(ReportDef& report) const;
    std::vector<std::string> StoreDates(ReportDef& report) const;
    void Run();

    std::unique_ptr<Ui::frmReports> ui_;
    int shown_ = 0; ///< the report whose questions are on screen, 0 for none
};

} // namespace reports::screens

#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"
#include "shell/DigestTable.h"
#include "shell/RunHistory.h"

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace core::grid {
class Grid;
}

namespace shell::screens {

/// The runs of the past, and what one of them posted and skipped, each row with its reason. A row
/// opens its record; rows can be taken back and posted again.
class frmPosted : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmPosted(QWidget* parent = nullptr);

    /// Shows the history of the books, the last run first. `digest` is what was posted since the
    /// program started; it is shown as a run of its own if the history doesn't have it.
    void Setup(const RunDigest& digest = {});

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;
    void changeEvent(QEvent* event) override;

  private:
    void SetUpGrids(QVBoxLayout& rows);
    void SetUpButtons(QVBoxLayout& rows);
    void ReadRuns();
    void ReadEarlierRuns();
    /// Shows the runs, and selects the one of this name, or the last one if it isn't there.
    void ShowRuns(const std::string& selected);
    void ShowRun();
    /// Shows the rows of the selected run, and selects some by their numbers.
    void ShowRows(const std::vector<std::int32_t>& selected);
    /// Reads what was taken back again, and keeps the selected rows selected.
    void Refresh();
    /// Does the same, and also shows runs that were posted in the meantime.
    void FollowHistory();
    void ReadAgain();
    /// Shows the selected row's reason, and enables the buttons that apply to the row.
    void ShowSelected();
    const PastRun* ShownRun() const;
    /// Returns the digest that is shown; one without rows if no run is selected.
    const RunDigest& ShownDigest() const;
    void OpenRow(std::int32_t number) const;
    void OpenSelected() const;

    /// Whether a command is for rows that are taken back or for those that aren't.
    enum class Rows { Posted, TakenBack };
    std::vector<DigestRow> SelectedRows(Rows wanted) const;
    bool Agreed(const std::vector<DigestRow>& rows) const;
    void TakeBackSelected();
    void PostSelectedAgain();

    std::vector<PastRun> runs_;
    /// The run that the history doesn't have, if there is one.
    std::optional<PastRun> unkept_;
    /// The first day of the runs that are shown; unset for all.
    platform::Date since_;
    /// The size and the time of the history when it was read.
    std::pair<std::uintmax_t, std::filesystem::file_time_type> read_;
    bool isLoading_ = false;
    std::shared_ptr<const TakenRows> takenBack_;
    QLabel* notice_;
    QPushButton* earlier_;
    core::grid::Grid* runList_;
    core::grid::Grid* list_;
    QLabel* reason_; ///< of the selected row, in full
    QPushButton* open_ = nullptr;
    QPushButton* takeBack_ = nullptr;
    QPushButton* postAgain_ = nullptr;
};

} // namespace shell::screens

#pragma once

#include <vector>

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
    void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id) override;

  private:
    void SetUpGrids(QVBoxLayout& rows);
    void SetUpButtons(QVBoxLayout& rows);
    void ShowRuns();
    void ShowRun();
    void Reload();
    /// Reads the rows again, and keeps the selected one selected.
    void Refresh();
    /// Shows the selected row's reason, and enables the buttons that it has work for.
    void ShowSelected();
    const RunDigest* ShownDigest() const;
    void OpenRow(std::int32_t number) const;
    void OpenSelected() const;

    /// Whether a command is for rows that are taken back or for those that aren't.
    enum class Rows { Posted, TakenBack };
    std::vector<DigestRow> SelectedRows(Rows wanted) const;
    bool Agreed(const std::vector<DigestRow>& rows) const;
    void TakeBackSelected();
    void PostSelectedAgain();

    std::vector<PastRun> runs_;
    std::vector<core::TakenRow> takenBack_;
    QLabel* notice_;
    core::grid::Grid* runList_;
    core::grid::Grid* list_;
    QLabel* reason_; ///< of the selected row, in full
    QPushButton* open_ = nullptr;
    QPushButton* takeBack_ = nullptr;
    QPushButton* postAgain_ = nullptr;
};

} // namespace shell::screens

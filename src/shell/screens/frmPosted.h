#pragma once

#include "core/forms/Form.h"
#include "shell/RunDigest.h"

class QModelIndex;
class QTreeView;

namespace shell::screens {

/// What a bring-up-to-date run posted, row by row, and what it had to pass over. A row opens the
/// record that it was posted for.
class frmPosted : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmPosted(QWidget* parent = nullptr);

    /// Shows a copy of what the run left.
    void Setup(RunDigest digest);

  private:
    void OpenRow(const QModelIndex& row) const;

    RunDigest digest_;
    QTreeView* list_;
};

} // namespace shell::screens

#pragma once

#include "core/forms/Form.h"
#include "shell/RunDigest.h"

namespace core::grid {
class Grid;
}

namespace shell::screens {

/// The rows that a daily run has posted, and the records that it skipped. A row opens the record
/// that it was posted for.
class frmPosted : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmPosted(QWidget* parent = nullptr);

    /// Shows a copy of the digest.
    void Setup(RunDigest digest);

  private:
    void OpenRow(std::int32_t number) const;

    RunDigest digest_;
    core::grid::Grid* list_;
};

} // namespace shell::screens

#pragma once

#include <memory>

#include "core/forms/Form.h"
#include "exchange/CheckBooks.h"

namespace Ui {
class frmCheck;
}

namespace exchange::screens {

/// Checks the database and the books, and lists the findings.
class frmCheck : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmCheck(QWidget* parent = nullptr);
    ~frmCheck() override;

    /// Shows the screen and runs the check.
    void Setup();

  private:
    void Check();
    void Show(const std::vector<Finding>& findings);

    std::unique_ptr<Ui::frmCheck> ui_;
};

} // namespace exchange::screens

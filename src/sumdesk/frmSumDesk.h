#pragma once

#include <memory>

#include "core/forms/Form.h"
#include "sumdesk/Calculator.h"

namespace Ui {
class frmSumDesk;
}

namespace sumdesk {

/// The calculator's window: sums, loans and days on a page each, beside the tape.
class frmSumDesk : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmSumDesk(QWidget* parent = nullptr);
    ~frmSumDesk() override;

    void Setup();

    /// Escape clears the page in front; it doesn't close the calculator, whose tape would be lost.
    void reject() override;

  private:
    void ShowTape();
    void CopyTape();
    void ClearTape();

    std::unique_ptr<Ui::frmSumDesk> ui_;
    Calculator calculator_;
};

} // namespace sumdesk

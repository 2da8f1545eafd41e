#pragma once

#include <array>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"
#include "exchange/FinExport.h"

class QRadioButton;

namespace Ui {
class frmFinExport;
}

namespace core::binding {
class DateEdit;
}

namespace exchange::screens {

/// The export of transactions to another bookkeeping program.
class frmFinExport : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmFinExport(QWidget* parent = nullptr);
    ~frmFinExport() override;

    void Setup();

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    using Choices = std::array<QRadioButton*, 3>;

    void Connect();
    void ShowSettings();
    void ReadSettings();
    void FillList();
    void RangeChanged();
    void DayEntered(core::binding::DateEdit& box);
    void Export();

    std::unique_ptr<Ui::frmFinExport> ui_;
    Choices types_;
    Choices ranges_;
    FinExportSettings settings_;
    bool loading_ = true;
};

} // namespace exchange::screens

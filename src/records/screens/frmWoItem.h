#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"

namespace Ui {
class frmWoItem;
}

namespace records::screens {

/// An entry of a work order's history.
class frmWoItem : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmWoItem(QWidget* parent = nullptr);
    ~frmWoItem() override;

    /// Opens an entry, or a new one of a work order, dated today.
    void Setup(std::int32_t id, std::int32_t idWorkOrder);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;

  private:
    std::unique_ptr<Ui::frmWoItem> ui_;
    std::int32_t idWorkOrder_ = 0;
};

} // namespace records::screens

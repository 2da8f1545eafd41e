#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

namespace Ui {
class frmWorkOrder;
class frmWorkOrderJob;
} // namespace Ui

namespace records::screens {

class RelatedDBs;

/// A maintenance job on a unit, with its history and files.
class frmWorkOrder : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmWorkOrder(QWidget* parent = nullptr);
    ~frmWorkOrder() override;

    /// Opens a work order, or a new one on `idUnit` (0 for none).
    void Setup(std::int32_t id, std::int32_t idUnit = 0);

  protected:
    void FillListsFor(platform::Recordset& row) override;
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void MakePanels();
    void FillLists(std::int32_t idUnit);
    void FillUnitLists();
    void FillUnitLists(std::int32_t idUnit);
    void FillVendors();
    void ShowVendor();

    std::unique_ptr<Ui::frmWorkOrder> ui_;
    std::unique_ptr<Ui::frmWorkOrderJob> job_;
    RelatedDBs* history_ = nullptr;
};

} // namespace records::screens

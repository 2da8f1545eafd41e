#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"

namespace documents::screens {
class FileObjects;
}

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
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(std::int16_t kind) override;

  private:
    /// What is chosen of the lists that depend on the unit; 0 keeps a list's selection.
    struct UnitChoices {
        std::int32_t idRoom = 0;
        std::int32_t idAppliance = 0;
        std::int32_t idOwner = 0;
    };

    void MakePanels();
    void FillLists(std::int32_t idUnit);
    void FillUnitLists();
    void FillUnitLists(const UnitChoices& chosen);
    void FillVendors();
    void ShowVendor();

    std::unique_ptr<Ui::frmWorkOrder> ui_;
    std::unique_ptr<Ui::frmWorkOrderJob> job_;
    RelatedDBs* history_ = nullptr;
    documents::screens::FileObjects* files_ = nullptr;
};

} // namespace records::screens

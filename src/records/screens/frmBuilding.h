#pragma once

#include <cstdint>
#include <memory>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

class QLabel;
class QMenuBar;

namespace Ui {
class frmBuilding;
class frmBuildingPlace;
class frmBuildingUnit;
class frmBuildingFinancial;
class frmBuildingServices;
} // namespace Ui

namespace books::screens {
class General_Ledger;
}

namespace records::screens {

/// A building together with one of its units. A property of a single unit looks like one record; a
/// building of several has a list to choose the unit from.
class frmBuilding : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmBuilding(QWidget* parent = nullptr);
    ~frmBuilding() override;

    /// Opens a building, or a unit's building. With neither, a new building, which starts as a copy
    /// of `fromUnit` and its building unless that is 0.
    void Setup(std::int32_t idBuilding, std::int32_t idUnit, std::int32_t fromUnit = 0);

    std::int32_t UnitId() const { return idUnit_; }
    /// Saves the changes and shows another unit of the building. Returns false and does nothing if
    /// the save is refused.
    bool SelectUnit(std::int32_t idUnit);
    /// Adds a unit to a building of several, or turns this property into a building of several.
    void AddUnit();

  protected:
    void ShowRow(platform::Recordset& row) override;
    bool Agreed() override;
    void Store() override;
    void RowMissing() override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;
    std::vector<core::forms::Subject> Subjects() const override;
    void FollowOthers(const core::binding::Controls& touched) override;
    void changeEvent(QEvent* event) override;

  private:
    void MakePanels();
    void MakeMenus();
    void Connect();
    void FillLists();
    void FillAccounts();
    void FillFreeAccounts();
    void Propose(std::int32_t fromUnit);

    bool IsHere(platform::Recordset& unit) const;
    void ShowUnit();
    void FillUnits();
    void ShowPanels();
    void StoreBuilding();
    void StoreUnit();
    bool SaveChanges();
    void Reload();
    void ShowAnotherUnit();
    void UnitChosen();
    void Convert();

    void CalculateEquity();
    void ShowDepreciation();
    void OpenTaxPage();

    std::unique_ptr<Ui::frmBuilding> ui_;
    std::unique_ptr<Ui::frmBuildingPlace> place_;
    std::unique_ptr<Ui::frmBuildingUnit> unit_;
    std::unique_ptr<Ui::frmBuildingFinancial> financial_;
    std::unique_ptr<Ui::frmBuildingServices> services_;
    books::screens::General_Ledger* ledger_ = nullptr;
    std::int32_t idUnit_ = 0;
    bool multi_ = false;
    bool makeMulti_ = false; ///< the save makes a building of several units of this one
    core::binding::ShownFields unitFields_{"Unit"};
};

/// Opens the building or unit of a request, in the form that shows the building already if there is
/// one.
void OpenBuilding(const core::EditRequest& request);

} // namespace records::screens

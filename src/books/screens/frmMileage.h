#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>

#include "books/TripLog.h"
#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

class QAction;

namespace Ui {
class frmMileage;
}

namespace books::screens {

class OdometerBoxes;

/// The mileage log: the trips of a period, and the entries of the selected or a new trip.
class frmMileage : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmMileage(QWidget* parent = nullptr);
    ~frmMileage() override;

    /// Opens a trip, or a new one for id 0.
    void Setup(std::int32_t id = 0);

  protected:
    void ShowRow(platform::Recordset& row) override;
    void WriteRow(platform::Recordset& row) override;
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void FollowOthers(const core::binding::Controls& touched) override;
    void Store() override;
    bool SavesUntouched() const override { return false; }
    void Refresh(core::RecordKind kind) override;

  private:
    void MakeMenu();
    void Connect();
    void ConnectChoices();
    void Propose();
    void FillLists();
    void FillFilterItems();
    void FillGrid();
    void ShowTotals();
    TripFilter Filter() const;
    void PeriodChosen();
    void RowSelected();
    void VehicleChosen();
    void BuildingChosen();
    bool IsOdometerTouched() const;
    bool MayLeaveTrip();
    void Add();
    void NewTrip();
    void CopyTrip();
    void DeleteTrip();
    void OpenWizard();
    void ShowAvailable();

    std::unique_ptr<Ui::frmMileage> ui_;
    QAction* copy_ = nullptr;
    QAction* delete_ = nullptr;
    QPointer<QWidget> wizard_;
    std::unique_ptr<OdometerBoxes> odometer_;
    bool beginTyped_ = false;
    bool isNew_ = false; ///< the row being written gets a new id
    bool filling_ = false;
};

} // namespace books::screens

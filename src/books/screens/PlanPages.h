#pragma once

#include <memory>
#include <vector>

#include "books/TripPlan.h"
#include "books/screens/PlanList.h"

namespace Ui {
class PlanBuildings;
class PlanTrips;
class PlanVehicles;
} // namespace Ui

namespace books::screens {

class OdometerBoxes;

/// The vehicles of a plan, with their readings, days and shares.
class VehiclesPage : public PlanRows<PlanVehicle> {
    Q_OBJECT

  public:
    explicit VehiclesPage(QWidget* parent);
    ~VehiclesPage() override;

    void Show(std::vector<PlanVehicle> vehicles) { SetRows(std::move(vehicles)); }
    const std::vector<PlanVehicle>& Vehicles() const { return Rows(); }

  protected:
    QStringList Cells(int row) const override;
    std::optional<bool> IsTicked(int row) const override { return At(row).isUsed; }
    void Tick(int row, bool isOn) override { At(row).isUsed = isOn; }
    void ShowBoxes(int row) override;
    std::vector<std::string> Errors(int row) const override;
    void Store(int row) override;

  private:
    std::unique_ptr<Ui::PlanVehicles> ui_;
};

/// The buildings of a plan with their distances, and how far the length of a trip may vary.
class BuildingsPage : public PlanRows<PlanBuilding> {
    Q_OBJECT

  public:
    explicit BuildingsPage(QWidget* parent);
    ~BuildingsPage() override;

    void Show(std::vector<PlanBuilding> buildings) { SetRows(std::move(buildings)); }
    const std::vector<PlanBuilding>& Buildings() const { return Rows(); }
    double Variance() const;
    /// Fills the box of buildings.
    void FillChoices();

  protected:
    QStringList Cells(int row) const override;
    std::optional<bool> IsTicked(int row) const override { return At(row).isUsed; }
    void Tick(int row, bool isOn) override { At(row).isUsed = isOn; }
    void ShowBoxes(int row) override;
    std::vector<std::string> Errors(int row) const override;
    void Store(int row) override;

  private:
    std::unique_ptr<Ui::PlanBuildings> ui_;
};

/// The reconstructed trips, to be checked and changed before they are submitted.
class TripsPage : public PlanRows<PlannedTrip> {
    Q_OBJECT

  public:
    explicit TripsPage(QWidget* parent);
    ~TripsPage() override;

    /// `leftOut` is the number of transactions without a trip.
    void Show(const TripPlan& plan, std::vector<PlannedTrip> trips, std::size_t leftOut);
    const std::vector<PlannedTrip>& Planned() const { return Rows(); }

  Q_SIGNALS:
    void PreviewAsked();

  protected:
    QStringList Cells(int row) const override;
    std::optional<bool> IsTicked(int /*row*/) const override { return std::nullopt; }
    void Tick(int /*row*/, bool /*isOn*/) override {}
    void ShowBoxes(int row) override;
    std::vector<std::string> Errors(int row) const override;
    void Store(int row) override;

  private:
    void ShowTotals();

    std::unique_ptr<Ui::PlanTrips> ui_;
    TripPlan plan_;
    std::size_t leftOut_ = 0;
    std::unique_ptr<OdometerBoxes> odometer_;
};

} // namespace books::screens

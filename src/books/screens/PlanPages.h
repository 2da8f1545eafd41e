#pragma once

#include <memory>
#include <vector>

#include "books/Odometer.h"
#include "books/TripPlan.h"
#include "books/screens/PlanList.h"

namespace Ui {
class PlanBuildings;
class PlanTrips;
class PlanVehicles;
} // namespace Ui

namespace books::screens {

/// The vehicles of a plan, with their readings, days and shares.
class VehiclesPage : public PlanList {
    Q_OBJECT

  public:
    explicit VehiclesPage(QWidget* parent);
    ~VehiclesPage() override;

    void Show(std::vector<PlanVehicle> vehicles);
    const std::vector<PlanVehicle>& Vehicles() const { return vehicles_; }

  protected:
    int Count() const override { return static_cast<int>(vehicles_.size()); }
    QStringList Cells(int row) const override;
    std::optional<bool> IsTicked(int row) const override { return At(row).isUsed; }
    void Tick(int row, bool isOn) override;
    void ShowBoxes(int row) override;
    std::vector<std::string> Errors(int row) const override;
    void Store(int row) override;
    void Remove(int row) override;

  private:
    const PlanVehicle& At(int row) const { return vehicles_.at(static_cast<std::size_t>(row)); }

    std::unique_ptr<Ui::PlanVehicles> ui_;
    std::vector<PlanVehicle> vehicles_;
};

/// The buildings of a plan with their distances, and how far the length of a trip may vary.
class BuildingsPage : public PlanList {
    Q_OBJECT

  public:
    explicit BuildingsPage(QWidget* parent);
    ~BuildingsPage() override;

    void Show(std::vector<PlanBuilding> buildings);
    const std::vector<PlanBuilding>& Buildings() const { return buildings_; }
    double Variance() const;
    /// Fills the box of buildings.
    void FillChoices();

  protected:
    int Count() const override { return static_cast<int>(buildings_.size()); }
    QStringList Cells(int row) const override;
    std::optional<bool> IsTicked(int row) const override { return At(row).isUsed; }
    void Tick(int row, bool isOn) override;
    void ShowBoxes(int row) override;
    std::vector<std::string> Errors(int row) const override;
    void Store(int row) override;
    void Remove(int row) override;

  private:
    const PlanBuilding& At(int row) const { return buildings_.at(static_cast<std::size_t>(row)); }

    std::unique_ptr<Ui::PlanBuildings> ui_;
    std::vector<PlanBuilding> buildings_;
};

/// The reconstructed trips, to be checked and changed before they are submitted.
class TripsPage : public PlanList {
    Q_OBJECT

  public:
    explicit TripsPage(QWidget* parent);
    ~TripsPage() override;

    /// `leftOut` is the number of transactions without a trip.
    void Show(const TripPlan& plan, std::vector<PlannedTrip> trips, std::size_t leftOut);
    const std::vector<PlannedTrip>& Planned() const { return trips_; }

  Q_SIGNALS:
    void PreviewAsked();

  protected:
    int Count() const override { return static_cast<int>(trips_.size()); }
    QStringList Cells(int row) const override;
    std::optional<bool> IsTicked(int /*row*/) const override { return std::nullopt; }
    void Tick(int /*row*/, bool /*isOn*/) override {}
    void ShowBoxes(int row) override;
    std::vector<std::string> Errors(int row) const override;
    void Store(int row) override;
    void Remove(int row) override;

  private:
    const PlannedTrip& At(int row) const { return trips_.at(static_cast<std::size_t>(row)); }
    void ConnectOdometer();
    void ShowOdometer(const QWidget* typed);
    void ShowTotals();

    std::unique_ptr<Ui::PlanTrips> ui_;
    TripPlan plan_;
    std::vector<PlannedTrip> trips_;
    std::size_t leftOut_ = 0;
    Odometer odometer_;
};

} // namespace books::screens

#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "books/TripPlan.h"
#include "core/RecordKinds.h"
#include "core/forms/frmWizard.h"

namespace Ui {
class PlanPeriod;
}

namespace books::screens {

class BuildingsPage;
class TripsPage;
class VehiclesPage;

/// Reconstructs a mileage log: makes up trips to the buildings from the transactions of a period.
class frmMileageWiz : public core::forms::frmWizard {
    Q_OBJECT

  public:
    /// Without a seed, the clock seeds the random numbers, so that two wizards make up different
    /// logs.
    explicit frmMileageWiz(QWidget* parent = nullptr, std::optional<std::uint32_t> seed = {});
    ~frmMileageWiz() override;

    void Setup();

  protected:
    std::vector<std::string> StepErrors(int step) override;
    void ShowStep(int step) override;
    bool Agreed() override;
    void Finish() override;
    bool MayClose() override;
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void MakeSteps();
    void Connect();
    /// Reads the lists of the period; rows that are still there keep the user's settings.
    void Init();
    void FillCategories(const std::vector<std::string>& categories);
    void PeriodTyped();
    TripPlan Plan() const;
    void Preview();
    void PreviewAgain();

    std::unique_ptr<Ui::PlanPeriod> period_;
    VehiclesPage* vehicles_ = nullptr;
    BuildingsPage* buildings_ = nullptr;
    TripsPage* trips_ = nullptr;
    SeededChance chance_;
    /// The period for which the lists were read.
    platform::Date from_;
    platform::Date to_;
    TripPlan shown_; ///< what the preview was made from
    bool hasPreview_ = false;
    bool isChanged_ = false; ///< rows of the preview were changed by hand
    bool isSubmitted_ = false;
    std::int64_t logged_ = 0; ///< trips of the period that the user knows of
};

} // namespace books::screens

#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "books/clsDepreciation.h"
#include "core/forms/Form.h"

namespace Ui {
class frmDepreciation;
}

namespace books::screens {

/// A building's depreciation as a grid and as a chart. It writes nothing.
class frmDepreciation : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmDepreciation(QWidget* parent = nullptr);
    ~frmDepreciation() override;

    /// Shows the schedule of a building. Throws an Error if the start date isn't valid or the basis
    /// is too large for money; the form then doesn't open.
    void Setup(std::int32_t id, std::string_view description, double basis,
               std::string_view startDate, std::string_view method, double life);

    /// Returns the building whose schedule is shown.
    std::int32_t BuildingId() const { return idBuilding_; }

    /// Brings the schedule of this building to the front; returns false if it isn't open.
    static bool BringToFront(std::int32_t id);

  private:
    void Connect();
    void ShowGrid();
    void ShowChart();
    void CopyClip() const;

    std::unique_ptr<Ui::frmDepreciation> ui_;
    clsDepreciation depreciation_;
    std::int32_t idBuilding_ = 0;
};

} // namespace books::screens

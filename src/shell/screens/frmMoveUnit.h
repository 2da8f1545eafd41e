#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "core/forms/Form.h"

namespace Ui {
class frmMoveUnit;
}

namespace shell::screens {

/// Asks for the building to move a unit to: the keyboard's alternative to dragging it in the tree.
class frmMoveUnit : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmMoveUnit(QWidget* parent = nullptr);
    ~frmMoveUnit() override;

    /// `move` is called with the chosen building.
    void Setup(const QString& unit, std::function<void(std::int32_t idBuilding)> move);

  private:
    void Fill();
    void Narrow(const QString& text);
    void Submit();

    std::unique_ptr<Ui::frmMoveUnit> ui_;
    std::function<void(std::int32_t)> move_;
};

} // namespace shell::screens

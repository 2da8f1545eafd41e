#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"

namespace Ui {
class frmRoom;
}

namespace documents::screens {
class FileObjects;
}

namespace records::screens {

/// One room of a unit.
class frmRoom : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmRoom(QWidget* parent = nullptr);
    ~frmRoom() override;

    /// Opens a room, or a new one in `parentUnit`.
    void Setup(std::int32_t id, std::int32_t parentUnit);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void AfterSave() override;
    void Refresh(std::int16_t kind) override;

  private:
    std::unique_ptr<Ui::frmRoom> ui_;
    documents::screens::FileObjects* files_ = nullptr;
};

} // namespace records::screens

#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

namespace Ui {
class frmManagerLink;
}

namespace records::screens {

/// One manager of a building, with the terms.
class frmManagerLink : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmManagerLink(QWidget* parent = nullptr);
    ~frmManagerLink() override;

    /// Opens a manager, or a new one for `parentBuilding`.
    void Setup(std::int32_t id, std::int32_t parentBuilding);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    std::unique_ptr<Ui::frmManagerLink> ui_;
};

} // namespace records::screens

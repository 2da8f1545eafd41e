#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

namespace Ui {
class frmIncident;
}

namespace records::screens {

/// A dated note about a tenant.
class frmIncident : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmIncident(QWidget* parent = nullptr);
    ~frmIncident() override;

    /// Opens an incident, or a new one for `parentTenant`, dated today.
    void Setup(std::int32_t id, std::int32_t parentTenant);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void Refresh(core::RecordKind kind) override;

  private:
    std::unique_ptr<Ui::frmIncident> ui_;
};

} // namespace records::screens

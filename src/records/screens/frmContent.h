#pragma once

#include <cstdint>
#include <memory>

#include "core/forms/RecordForm.h"

namespace Ui {
class frmContent;
}

namespace documents::screens {
class FileObjects;
}

namespace records::screens {

/// A furnishing or movable item of a unit.
class frmContent : public core::forms::RecordForm {
    Q_OBJECT

  public:
    explicit frmContent(QWidget* parent = nullptr);
    ~frmContent() override;

    /// Opens an item, or a new one in `parentUnit`.
    void Setup(std::int32_t id, std::int32_t parentUnit);

  protected:
    void ShowCaption() override;
    std::vector<std::string> Errors() override;
    void AfterSave() override;
    void Refresh(std::int16_t kind) override;

  private:
    std::unique_ptr<Ui::frmContent> ui_;
    documents::screens::FileObjects* files_ = nullptr;
};

} // namespace records::screens

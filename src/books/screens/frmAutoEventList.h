#pragma once

#include <cstdint>
#include <memory>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"

namespace Ui {
class frmAutoEventList;
}

namespace books::screens {

/// The list of all automated events.
class frmAutoEventList : public core::forms::Form {
    Q_OBJECT

  public:
    explicit frmAutoEventList(QWidget* parent = nullptr);
    ~frmAutoEventList() override;

    void Setup();

  protected:
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) override;

  private:
    void UpdateGrid();

    std::unique_ptr<Ui::frmAutoEventList> ui_;
};

} // namespace books::screens

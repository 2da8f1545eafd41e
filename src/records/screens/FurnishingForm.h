#pragma once

#include <cstdint>

#include "core/RecordKinds.h"
#include "core/forms/RecordForm.h"

class QComboBox;

namespace core::forms {
class ActionBar;
}

namespace records::screens {

/// Whether a record of a unit can also belong to none.
enum class NoUnit { Refused, Offered };

/// The base of the forms of a unit's rooms, contents and appliances. It has the list of units and
/// the boxes that remember what was typed into them.
class FurnishingForm : public core::forms::RecordForm {
    Q_OBJECT

  public:
    /// Opens a record, or a new one in `parentUnit`.
    void Setup(std::int32_t id, std::int32_t parentUnit);

  protected:
    FurnishingForm(core::RecordKind kind, NoUnit noUnit, QWidget* parent);

    /// Connects the controls created by setupUi.
    void WireFurnishing(QComboBox& unit, core::forms::ActionBar& buttons);
    /// Fills the lists besides the units.
    virtual void FillLists() {}
    /// Returns the text that names the record in the caption.
    virtual QString Name() const = 0;

    void ShowCaption() override;
    void AfterSave() override;
    void Refresh(core::RecordKind kind) override;

  private:
    void FillUnits(std::int32_t selectedId);

    core::RecordKind kind_;
    NoUnit noUnit_;
    QComboBox* unit_ = nullptr;
};

} // namespace records::screens

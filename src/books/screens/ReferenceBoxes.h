#pragma once

#include <QObject>
#include <array>
#include <cstdint>

#include "books/PostTransaction.h"

class QComboBox;

namespace books::screens {

/// The six boxes that name them. Choosing a lease chooses its tenant, unit and building; a unit
/// chooses its building, which can't be chosen then; a mortgage chooses its building.
class ReferenceBoxes : public QObject {
    Q_OBJECT

  public:
    struct Boxes {
        QComboBox* lease;
        QComboBox* tenant;
        QComboBox* building;
        QComboBox* unit;
        QComboBox* mortgage;
        QComboBox* workOrder;
    };

    ReferenceBoxes(const Boxes& boxes, QObject* parent);

    void Fill(const References& chosen);
    /// Records of a kind changed: what is chosen stays so.
    void Refresh(std::int16_t kind);
    /// The building can be chosen only while no unit is. To be called when code changed a box.
    void ShowAvailable();

    References Chosen() const;

  private:
    struct Box {
        QComboBox* combo;
        std::int16_t kind;
        std::int32_t References::*id;
    };

    void LeaseChosen();
    void UnitChosen();
    void MortgageChosen();
    static void Select(QComboBox& combo, std::int32_t id);

    Boxes boxes_;
    std::array<Box, 6> all_;
};

} // namespace books::screens

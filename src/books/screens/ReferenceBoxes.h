#pragma once

#include <QObject>
#include <array>
#include <cstdint>

#include "books/PostTransaction.h"
#include "core/RecordKinds.h"

class QComboBox;

namespace books::screens {

/// The six boxes of a transaction's references. Choosing a lease also chooses its tenant, unit and
/// building; a unit chooses its building, which is then disabled; a mortgage chooses its building.
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
    /// Refills the boxes after records of a kind changed; the choices stay.
    void Refresh(core::RecordKind kind);
    /// Enables the building only while no unit is chosen. Called after code has changed a box.
    void ShowAvailable();

    References Chosen() const;

  private:
    struct Box {
        QComboBox* combo;
        core::RecordKind kind;
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

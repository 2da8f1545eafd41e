#pragma once

#include <QObject>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/RecordKinds.h"

class QComboBox;

namespace books::screens {

/// Whether the boxes offer a row for no party.
enum class Nobody { NotOffered, Offered };

/// The two boxes for a party of a transaction: its kind, and the party. The second offers the
/// records of the kind; if it can be typed in, any name will do.
class PartyBoxes : public QObject {
    Q_OBJECT

  public:
    PartyBoxes(QComboBox& type, QComboBox& party, Nobody nobody, QObject* parent);

    /// Fills both boxes for a kind and a record of it; selects the first row for id 0.
    void Show(core::RecordKind type, std::int32_t id);
    /// Fills the second box for the kind shown in the first, and selects a stored row's record.
    void ShowStored(std::int32_t id);
    /// Does the same for a party that may be a mere name.
    void ShowStored(std::int32_t id, std::string_view name);
    /// Refills the boxes after records of a kind changed; the party stays selected.
    void Refresh(core::RecordKind kind);

    core::RecordKind Type() const;
    std::int32_t Id() const;
    std::string Name() const;

  private:
    void LetNamesStand();
    void Fill(std::int32_t id);

    QComboBox& type_;
    QComboBox& party_;
    Nobody nobody_;
};

} // namespace books::screens

#pragma once

#include <QObject>
#include <cstdint>
#include <string>
#include <string_view>

class QComboBox;

namespace books::screens {

/// Whether the boxes offer a row for nobody.
enum class Nobody { NotOffered, Offered };

/// The two boxes that name one side of a transaction: what kind of party it is, and who. The second
/// offers the records of the kind; where it can be typed in, any name will do.
class PartyBoxes : public QObject {
    Q_OBJECT

  public:
    PartyBoxes(QComboBox& type, QComboBox& party, Nobody nobody, QObject* parent);

    /// Fills both for a kind and a record of it; the first row for id 0.
    void Show(std::int16_t type, std::int32_t id);
    /// Fills the second for the kind that the first shows now, as the row has it: a record.
    void ShowStored(std::int32_t id);
    /// The same for a party that may be only a name.
    void ShowStored(std::int32_t id, std::string_view name);
    /// Records of a kind changed: who is named stays named.
    void Refresh(std::int16_t kind);

    std::int16_t Type() const;
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

#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "platform/database/Connection.h"
#include "removal/DeleteRecord.h"

namespace removal {

/// What becomes of the charges that a payment settled.
enum class Charges { OpenAgain, Remove };

/// One removal of records, as one unit of work; the screens are told when it is kept.
class Removal {
  public:
    Removal();

    /// The statements of one record. `charges` matters to payments alone.
    void Remove(std::int16_t kind, std::int32_t id, Charges charges = Charges::OpenAgain);

    /// Notes that the screens are to hear of a kind; what was noted before isn't noted again.
    void Note(std::int16_t kind, std::int16_t action);

    void Keep(Tell tell);

  private:
    struct Message {
        std::int16_t kind;
        std::int16_t action;
        friend bool operator==(const Message&, const Message&) = default;
    };

    void RemoveLease(std::int32_t id);
    void RemoveOwner(std::int32_t id);
    void RemoveTransaction(std::int32_t id, Charges charges);
    void RemoveStatements(std::int16_t kind, std::int32_t id);

    platform::UnitOfWork unit_;
    std::vector<Message> messages_;
};

/// Does `work` as one removal. When it fails, what was done until then is kept and told, and the
/// failure thrown on.
void RunRemoval(Tell tell, const std::function<void(Removal& removal)>& work);

/// Asks what becomes of the charges where the record is a payment.
Charges AskAboutCharges(std::int16_t kind, std::int32_t id);

} // namespace removal

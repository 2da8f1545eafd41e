#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "core/ChargeLedger.h"
#include "core/RecordKinds.h"
#include "platform/database/Connection.h"
#include "removal/DeleteRecord.h"

namespace removal {

/// Whether the charges that a payment settled are deleted or become open again.
enum class Charges { OpenAgain, Remove };

/// One removal of records, as one unit of work; the screens are notified when it is committed.
class Removal {
  public:
    Removal();

    /// Runs the statements that remove one record. `charges` matters only for payments.
    void Remove(core::RecordKind kind, std::int32_t id, Charges charges = Charges::OpenAgain);

    /// Notes that the screens are to be notified of a kind; a second note of the same kind has no
    /// effect.
    void Note(core::RecordKind kind, std::int16_t action);

    void Keep(Tell tell);

  private:
    struct Message {
        core::RecordKind kind;
        std::int16_t action;
        friend bool operator==(const Message&, const Message&) = default;
    };

    /// Runs a statement, and notes the kind of the rows that it wrote; returns how many.
    std::int64_t Execute(std::string_view statement,
                         std::initializer_list<platform::Value> parameters);
    void RemoveLease(std::int32_t id);
    void RemoveOwner(std::int32_t id);
    void RemoveTransaction(std::int32_t id, Charges charges);
    void FreeCharges(const core::ChargeLedger& ledger, std::int32_t idTransaction);
    void RemoveStatements(core::RecordKind kind, std::int32_t id);

    platform::UnitOfWork unit_;
    std::vector<Message> messages_;
};

/// Does `work` as one removal. If it fails, what was done until then is kept and broadcast, and the
/// failure is passed on.
void RunRemoval(Tell tell, const std::function<void(Removal& removal)>& work);

/// If the record is a payment, asks what becomes of its charges.
Charges AskAboutCharges(core::RecordKind kind, std::int32_t id);

} // namespace removal

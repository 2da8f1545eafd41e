#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"
#include "core/RunReason.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace core {

/// One row that the bring-up-to-date run posted.
struct PostedRow {
    platform::Date date;
    std::string_view category;
    platform::Currency amount;
    RunReason reason{};
    /// The row's id in the rent log, the mortgage log or the transactions.
    std::int32_t id = 0;
};

/// Receives the results of the daily run while it runs. Rows are reported only after the unit of
/// work that wrote them has been committed.
class RunListener {
  public:
    virtual ~RunListener() = default;

    /// Called with the rows posted for one record: its kind, id and description, and the rows in
    /// their order.
    virtual void Posted(RecordKind recordKind, std::int32_t id, std::string_view description,
                        const std::vector<PostedRow>& rows) = 0;
    /// Called with a record that the run skipped, by its description, and with the reason. The
    /// record and its rows are unchanged.
    virtual void Failed(RecordKind recordKind, std::int32_t id, std::string_view description,
                        std::string_view reason) = 0;
};

/// Returns "Lease Smith, Elm St" for a record that the run skipped; a whole step has no kind.
std::string NameOfFailed(RecordKind recordKind, std::string_view description);

/// The steps of the run, in the only order they run in.
enum class RunStep { ScheduledEvents, Mortgages, Leases };

using RunStepFunction = std::function<void(RunListener&)>;

/// Registers the work of a step; a step without work does nothing.
void RegisterRunStep(RunStep step, RunStepFunction work);

/// Makes the books current: scheduled events, then mortgages, then leases. A step that fails as a
/// whole is reported to the listener (kind 0) and the next one runs.
void UpdateRecords(RunListener& listener);
/// Does the same without a listener.
void UpdateRecords();

} // namespace core

#include "core/DailyRun.h"

#include <array>
#include <exception>
#include <utility>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"

namespace core {

namespace {

struct Step {
    std::string_view name;
    RunStepFunction work;
};

/// Returns the steps in the order in which they run.
std::array<Step, 3>& Steps() {
    static std::array<Step, 3> steps = {
        {{"Scheduled events", {}}, {"Mortgages", {}}, {"Leases", {}}}};
    return steps;
}

class NobodyListens : public RunListener {
    void Posted(RecordKind /*recordKind*/, std::int32_t /*id*/, std::string_view /*description*/,
                const std::vector<PostedRow>& /*rows*/) override {}
    void Failed(RecordKind /*recordKind*/, std::int32_t /*id*/, std::string_view /*description*/,
                std::string_view /*reason*/) override {}
};

} // namespace

std::string NameOfFailed(RecordKind recordKind, std::string_view description) {
    if (recordKind == kNone) return std::string(description);
    return fmt::format("{} {}", RecordKindName(recordKind), description);
}

void RegisterRunStep(RunStep step, RunStepFunction work) {
    Steps().at(static_cast<std::size_t>(step)).work = std::move(work);
}

void UpdateRecords(RunListener& listener) {
    if (App().Connection.IsReadOnly()) return;
    for (const Step& step : Steps()) {
        if (!step.work) continue;
        LetMessagesRun();
        try {
            step.work(listener);
        } catch (const std::exception& error) {
            listener.Failed(kNone, 0, step.name, error.what());
        }
    }
}

void UpdateRecords() {
    NobodyListens nobody;
    UpdateRecords(nobody);
}

} // namespace core

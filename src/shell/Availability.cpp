#include "shell/Availability.h"

#include "core/RecordKinds.h"

namespace shell {

Availability EnableEditButtons(const WindowState& state) {
    const bool isList = state.kind != core::kAlert;
    const bool hasRecord = isList && state.selectedId != 0;
    return {.add = isList && state.hasEditor,
            .printGrid = isList,
            .edit = hasRecord && state.hasEditor,
            .record = hasRecord};
}

ExtraItems ExtraItemsOf(std::int16_t kind) {
    return {.refreshSummary = kind == core::kAlert,
            .payRent = kind == core::kLease,
            .payMortgage = kind == core::kMortgage,
            .copy = kind == core::kTransaction || kind == core::kUnit};
}

} // namespace shell

#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/RecordKinds.h"

namespace removal {

struct RemovalQuestion {
    std::string title;
    std::string text;
};

/// Returns the question before a record is removed, with the number of records that are removed
/// with it; nothing for a kind that is removed without a question.
std::optional<RemovalQuestion> QuestionBefore(core::RecordKind kind, std::int32_t id);

} // namespace removal

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace removal {

struct RemovalQuestion {
    std::string title;
    std::string text;
};

/// Returns the question before a record is removed, with the number of records that are removed
/// with it; nothing for a kind that is removed without a question.
std::optional<RemovalQuestion> QuestionBefore(std::int16_t kind, std::int32_t id);

} // namespace removal

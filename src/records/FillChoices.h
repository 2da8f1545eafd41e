#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "core/ChoiceList.h"
#include "platform/values/Value.h"

namespace records {

/// Where a drop-down list gets rows that belong to no record kind: a select of the columns
/// Description and Id, and the text of the first row, which means that nothing is chosen.
struct ChoiceSource {
    std::string_view none;
    std::string_view sql;
    std::initializer_list<platform::Value> parameters;
};

/// Fills a list and selects a record, or with id 0 the record selected before; selects nothing if
/// it isn't in the list. Throws on failure.
void FillChoices(core::ChoiceList& list, const ChoiceSource& source, std::int32_t selectedId = 0);

} // namespace records

#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "core/ChoiceList.h"
#include "platform/values/Value.h"

namespace records {

/// Rows for a drop-down list that no record kind has: a select with the columns Description and Id,
/// and the text of the first row, which stands for none.
struct ChoiceSource {
    std::string_view none;
    std::string_view sql;
    std::initializer_list<platform::Value> parameters;
};

/// Fills a list and selects a record, with id 0 the one that is selected now; none where it isn't
/// offered. Failures are thrown.
void FillChoices(core::ChoiceList& list, const ChoiceSource& source, std::int32_t selectedId = 0);

} // namespace records

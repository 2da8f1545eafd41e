#pragma once

#include <string>
#include <vector>

#include <fmt/core.h>

#include "core/DailyRun.h"
#include "platform/values/Conversions.h"

namespace tests {

/// Hears a run of the books: a line for each row it posted and each record it skipped.
struct RunHeard : core::RunListener {
    void Posted(core::RecordKind kind, std::int32_t id, std::string_view description,
                const std::vector<core::PostedRow>& rows) override {
        for (const core::PostedRow& row : rows)
            posted.push_back(fmt::format("{} {} {}: {} {} {}", core::KindNumber(kind), id,
                                         description, row.category, row.date.ToText(),
                                         platform::MoneyToText(row.amount)));
    }
    void Failed(core::RecordKind kind, std::int32_t id, std::string_view description,
                std::string_view reason) override {
        failed.push_back(
            fmt::format("{} {} {}: {}", core::KindNumber(kind), id, description, reason));
    }

    std::vector<std::string> posted;
    std::vector<std::string> failed;
};

} // namespace tests

#include "shell/RunDigest.h"

#include <algorithm>
#include <array>

#include <fmt/core.h>

#include "core/RecordKinds.h"
#include "platform/values/Text.h"

namespace shell {

namespace {

struct Noun {
    std::string_view category;
    std::string_view one;
    std::string_view many;
};

constexpr std::array<Noun, 8> kNouns = {{
    {"Rent", "rent charge", "rent charges"},
    {"Rent Subsidy", "subsidy charge", "subsidy charges"},
    {"Rent Discount", "discount", "discounts"},
    {"Late Fee", "late fee", "late fees"},
    {"Mortgage Payment", "mortgage charge", "mortgage charges"},
    {"Mortgage Escrow", "escrow charge", "escrow charges"},
    {"PMI Payment", "mortgage insurance charge", "mortgage insurance charges"},
    {"Late Payment", "mortgage late fee", "mortgage late fees"},
}};

std::string Counted(std::string_view category, std::size_t count) {
    const std::string_view word = platform::Trim(category);
    const auto* noun = std::find_if(kNouns.begin(), kNouns.end(),
                                    [&](const Noun& entry) { return entry.category == word; });
    if (noun == kNouns.end()) return fmt::format("{} {}", count, word);
    return fmt::format("{} {}", count, count == 1 ? noun->one : noun->many);
}

} // namespace

void RunDigest::Posted(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                       const std::vector<core::PostedRow>& rows) {
    descriptions_.emplace_back(description);
    for (const core::PostedRow& row : rows) {
        rows_.push_back({.recordKind = recordKind,
                         .recordId = id,
                         .date = row.date,
                         .category = std::string(row.category),
                         .amount = row.amount,
                         .reason = row.reason,
                         .rowId = row.id,
                         .description = descriptions_.size() - 1});
    }
}

void RunDigest::Failed(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                       std::string_view reason) {
    faults_.push_back({recordKind, id, std::string(description), std::string(reason)});
}

platform::Date RunDigest::FirstDay() const {
    const auto first = std::ranges::min_element(rows_, {}, &DigestRow::date);
    return first == rows_.end() ? platform::Date() : first->date;
}

std::string RunDigest::Line() const {
    if (rows_.empty()) return {};
    std::vector<std::pair<std::string_view, std::size_t>> counts;
    for (const DigestRow& row : rows_) {
        const auto count = std::find_if(counts.begin(), counts.end(), [&](const auto& entry) {
            return entry.first == row.category;
        });
        if (count == counts.end()) {
            counts.emplace_back(row.category, 1);
        } else {
            ++count->second;
        }
    }
    std::string line = fmt::format("Since {}: ", FirstDay().ToText());
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (i > 0) line += ", ";
        line += Counted(counts[i].first, counts[i].second);
    }
    return line;
}

std::string RunDigest::FaultLine() const {
    if (faults_.empty()) return {};
    return fmt::format("{} {} not be brought up to date", faults_.size(),
                       faults_.size() == 1 ? "record could" : "records could");
}

} // namespace shell

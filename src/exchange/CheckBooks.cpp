#include "exchange/CheckBooks.h"

#include <algorithm>
#include <array>

#include <fmt/core.h>

#include "core/MessagePump.h"
#include "exchange/CheckParts.h"
#include "platform/database/Integrity.h"
#include "platform/database/Recordset.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace {

struct Part {
    std::string_view name;
    void (*check)(platform::Connection& books, std::vector<Finding>& findings);
};

constexpr std::array<Part, 5> kParts = {{{"The database file", CheckFile},
                                         {"Identifiers", CheckIds},
                                         {"Links", CheckLinks},
                                         {"Balances", CheckBalances},
                                         {"Payments", CheckPayments}}};

constexpr std::size_t kIdsShown = 5;
constexpr std::string_view kDamageAdvice =
    "Restore the last backup, or export all tables as text and import them into a new database.";

std::int64_t CountOf(const std::vector<Finding>& findings, Severity severity) {
    return std::ranges::count_if(
        findings, [&](const Finding& finding) { return finding.severity == severity; });
}

} // namespace

std::string Counted(std::int64_t count, std::string_view word) {
    return fmt::format("{} {}{}", count, word, count == 1 ? "" : "s");
}

std::string FoundIds::List() const {
    std::string list;
    for (const std::string& id : first) {
        if (!list.empty()) list += ", ";
        list += id;
    }
    const std::int64_t more = count - static_cast<std::int64_t>(first.size());
    if (more > 0) list += fmt::format(" and {} more", more);
    return list;
}

FoundIds FindIds(platform::Connection& books, std::string_view sql) {
    FoundIds found;
    platform::Recordset rows;
    rows.Open(books, sql);
    found.count = rows.RecordCount();
    for (; !rows.Eof() && found.first.size() < kIdsShown; rows.MoveNext())
        found.first.push_back(rows[0].IsNull() ? "null" : rows[0].AsText());
    return found;
}

void CheckFile(platform::Connection& books, std::vector<Finding>& findings) {
    std::vector<std::string> faults;
    try {
        faults = platform::CheckIntegrity(books.File(), platform::CheckDepth::Full);
    } catch (const platform::DatabaseError& failure) {
        faults = {failure.what()};
    }
    for (const std::string& fault : faults) {
        findings.push_back({Severity::Fault, "The database file is damaged: " + fault,
                            std::string(kDamageAdvice)});
    }
}

std::vector<Finding> CheckBooks(platform::Connection& books, const CheckProgress& progress) {
    std::vector<Finding> findings;
    int number = 0;
    for (const Part& part : kParts) {
        if (progress) progress(part.name, number++, static_cast<int>(kParts.size()));
        core::LetMessagesRun();
        try {
            part.check(books, findings);
        } catch (const platform::Error& failure) {
            findings.push_back({Severity::Fault,
                                fmt::format("{} can't be checked: {}", part.name, failure.what()),
                                std::string(kDamageAdvice)});
        }
    }
    std::ranges::stable_partition(
        findings, [](const Finding& finding) { return finding.severity == Severity::Fault; });
    return findings;
}

bool HasFaults(const std::vector<Finding>& findings) {
    return CountOf(findings, Severity::Fault) > 0;
}

std::string CheckSummary(const std::vector<Finding>& findings) {
    if (findings.empty()) return "Everything is in order.";
    const std::int64_t faults = CountOf(findings, Severity::Fault);
    const std::int64_t notes = CountOf(findings, Severity::Note);
    if (faults == 0) return fmt::format("No faults were found, and {}.", Counted(notes, "note"));
    if (notes == 0) {
        return fmt::format("{} {} found.", Counted(faults, "fault"), faults == 1 ? "was" : "were");
    }
    return fmt::format("{} and {} were found.", Counted(faults, "fault"), Counted(notes, "note"));
}

} // namespace exchange

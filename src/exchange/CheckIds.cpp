#include <algorithm>

#include <fmt/core.h>

#include "exchange/CheckParts.h"
#include "platform/database/Recordset.h"
#include "platform/values/Text.h"
#include "store/Tables.h"

namespace exchange {

namespace {

struct Holder {
    std::int32_t id;
    const store::TableDefinition* table;
};

/// Returns whether a table's first field is its key: "IdUnit" of Unit, "IdTransaction" of
/// Transactions.
bool HasKey(const store::TableDefinition& table) {
    const store::FieldDefinition& first = table.fields.front();
    return first.kind == store::FieldKind::Long && first.name.starts_with("Id") &&
           platform::ToLower(table.name).starts_with(platform::ToLower(first.name.substr(2)));
}

std::vector<Holder> AllIds(platform::Connection& books) {
    std::vector<Holder> all;
    for (const store::TableDefinition& table : store::BooksTables()) {
        if (!HasKey(table) || books.Tables().Find(table.name) == nullptr) continue;
        platform::Recordset rows;
        rows.Open(books, fmt::format("SELECT {} FROM {}", table.fields.front().name, table.name));
        for (; !rows.Eof(); rows.MoveNext())
            all.push_back({rows[0].IsBlank() ? 0 : rows[0].AsLong(), &table});
    }
    std::ranges::sort(all, [](const Holder& a, const Holder& b) {
        return a.id != b.id ? a.id < b.id : a.table->name < b.table->name;
    });
    return all;
}

void TellShared(std::span<const Holder> holders, std::vector<Finding>& findings) {
    std::string names;
    for (const Holder& holder : holders)
        names += (names.empty() ? "" : ", ") + holder.table->name;
    const std::int32_t id = holders.front().id;
    if (id == 0) {
        findings.push_back(
            {Severity::Fault,
             fmt::format("{} without an identifier: {}",
                         Counted(static_cast<std::int64_t>(holders.size()), "record"), names),
             "Give each of them a new identifier, or delete it."});
        return;
    }
    findings.push_back(
        {Severity::Fault,
         fmt::format("The identifier {} belongs to several records: {}", id, names),
         "If a file was imported twice, delete one record of each pair; otherwise restore the copy "
         "of the database that was kept before the import."});
}

void CheckCounter(platform::Connection& books, std::int32_t highest,
                  std::vector<Finding>& findings) {
    const auto rows = books.Scalar("SELECT Count(*) FROM Configuration");
    if (rows && rows->AsLong() > 1) {
        findings.push_back({Severity::Fault,
                            fmt::format("The settings have {} rows instead of one", rows->AsLong()),
                            "Delete all but one row of the table Configuration."});
    }
    if (rows && rows->AsLong() == 0 && highest > 0) {
        findings.push_back({Severity::Fault,
                            "The settings are missing, and with them the counter of identifiers",
                            "Import the table Configuration from an export, or restore a backup."});
        return;
    }
    const auto next = books.Scalar("SELECT NextId FROM Configuration");
    if (!next || next->IsNull() || next->AsLong() > highest) return;
    findings.push_back(
        {Severity::Fault,
         fmt::format("New records would get identifiers that are in use: the next one is {}, the "
                     "highest in use is {}",
                     next->AsLong(), highest),
         fmt::format("Run the statement UPDATE Configuration SET NextId = {}",
                     static_cast<std::int64_t>(highest) + 1)});
}

} // namespace

void CheckIds(platform::Connection& books, std::vector<Finding>& findings) {
    const std::vector<Holder> all = AllIds(books);
    for (std::size_t i = 0; i < all.size();) {
        std::size_t end = i + 1;
        while (end < all.size() && all[end].id == all[i].id)
            ++end;
        if (end - i > 1 || all[i].id == 0) {
            TellShared(std::span(all).subspan(i, end - i), findings);
        }
        i = end;
    }
    CheckCounter(books, all.empty() ? 0 : all.back().id, findings);
}

} // namespace exchange

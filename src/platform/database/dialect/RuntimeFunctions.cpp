#include "platform/database/dialect/RuntimeFunctions.h"

#include <sqlite3.h>

#include <fmt/core.h>

#include "platform/database/dialect/RuntimeCall.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

int CompareTexts(void*, int sizeA, const void* a, int sizeB, const void* b) {
    const std::string_view textA(static_cast<const char*>(a), static_cast<std::size_t>(sizeA));
    const std::string_view textB(static_cast<const char*>(b), static_cast<std::size_t>(sizeB));
    return textA == textB ? 0 : CompareIgnoringCase(textA, textB);
}

} // namespace

void ThrowUnfit(const RuntimeCall& call, std::string_view wanted) {
    const bool quoted = call.IsText(0);
    const std::string mark = quoted ? "'" : "";
    const std::string shown = mark + std::string(call.Text(0)) + mark;
    if (call.Count() < 2) throw ConversionError(fmt::format("{} is not {}", shown, wanted));
    throw ConversionError(fmt::format("{} can't hold {}", call.Text(1), shown));
}

void RegisterRuntimeFunctions(sqlite3* connection) {
    sqlite3_create_collation_v2(connection, "VESTREL_TEXT", SQLITE_UTF8, nullptr, CompareTexts,
                                nullptr);
    AddTextFunctions(connection);
    AddDateFunctions(connection);
    AddNumberFunctions(connection);
    AddMoneyFunctions(connection);
    AddAggregates(connection);
}

} // namespace platform::dialect

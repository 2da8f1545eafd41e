#include "platform/database/dialect/RuntimeCall.h"

namespace platform::dialect {

namespace {

/// The value that First or Last keeps while the rows of a group pass by.
struct Kept {
    sqlite3_value* value;
};

Kept* KeptOf(sqlite3_context* context, int size) {
    return static_cast<Kept*>(sqlite3_aggregate_context(context, size));
}

void KeepFirst(sqlite3_context* context, int, sqlite3_value** arguments) {
    Kept* kept = KeptOf(context, sizeof(Kept));
    if (kept == nullptr) return sqlite3_result_error_nomem(context);
    if (kept->value == nullptr) kept->value = sqlite3_value_dup(arguments[0]);
}

void KeepLast(sqlite3_context* context, int, sqlite3_value** arguments) {
    Kept* kept = KeptOf(context, sizeof(Kept));
    if (kept == nullptr) return sqlite3_result_error_nomem(context);
    sqlite3_value_free(kept->value);
    kept->value = sqlite3_value_dup(arguments[0]);
}

void AnswerKept(sqlite3_context* context) {
    Kept* kept = KeptOf(context, 0);
    if (kept == nullptr || kept->value == nullptr) return sqlite3_result_null(context);
    sqlite3_result_value(context, kept->value);
    sqlite3_value_free(kept->value);
    kept->value = nullptr;
}

} // namespace

void AddAggregates(sqlite3* connection) {
    sqlite3_create_function_v2(connection, "vestrel_first", 1, SQLITE_UTF8, nullptr, nullptr,
                               KeepFirst, AnswerKept, nullptr);
    sqlite3_create_function_v2(connection, "vestrel_last", 1, SQLITE_UTF8, nullptr, nullptr,
                               KeepLast, AnswerKept, nullptr);
}

} // namespace platform::dialect

#include <cmath>

#include "platform/database/dialect/RuntimeCall.h"

namespace platform::dialect {

namespace {

/// The value that First or Last has kept so far, and its row's number, because the engine may read
/// the rows in the order of an index.
struct Kept {
    sqlite3_value* value;
    std::int64_t row;
};

template <bool Last>
void Keep(sqlite3_context* context, int, sqlite3_value** arguments) {
    auto* kept = static_cast<Kept*>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (kept == nullptr) return sqlite3_result_error_nomem(context);
    const std::int64_t row = sqlite3_value_int64(arguments[1]);
    const bool better = Last ? row >= kept->row : row < kept->row;
    if (kept->value != nullptr && !better) return;
    sqlite3_value_free(kept->value);
    kept->value = sqlite3_value_dup(arguments[0]);
    kept->row = row;
}

void AnswerKept(sqlite3_context* context) {
    auto* kept = static_cast<Kept*>(sqlite3_aggregate_context(context, 0));
    if (kept == nullptr || kept->value == nullptr) return sqlite3_result_null(context);
    sqlite3_result_value(context, kept->value);
    sqlite3_value_free(kept->value);
    kept->value = nullptr;
}

/// The mean so far, and the sum of the squared differences from it.
struct SpreadState {
    double mean;
    double squares;
    std::int64_t count;
};

void AddToSpread(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
    auto* spread =
        static_cast<SpreadState*>(sqlite3_aggregate_context(context, sizeof(SpreadState)));
    if (spread == nullptr) return sqlite3_result_error_nomem(context);
    const double number = sqlite3_value_double(arguments[0]);
    const double difference = number - spread->mean;
    ++spread->count;
    spread->mean += difference / static_cast<double>(spread->count);
    spread->squares += difference * (number - spread->mean);
}

/// Answers with the deviation of a sample; null for fewer than two numbers.
template <bool Root>
void AnswerSpread(sqlite3_context* context) {
    const auto* spread = static_cast<const SpreadState*>(sqlite3_aggregate_context(context, 0));
    if (spread == nullptr || spread->count < 2) return sqlite3_result_null(context);
    const double variance = spread->squares / static_cast<double>(spread->count - 1);
    sqlite3_result_double(context, Root ? std::sqrt(variance) : variance);
}

using Step = void (*)(sqlite3_context*, int, sqlite3_value**);
using Finish = void (*)(sqlite3_context*);

void AddAggregate(sqlite3* connection, const char* name, int count, Step step, Finish finish) {
    sqlite3_create_function_v2(connection, name, count, SQLITE_UTF8, nullptr, nullptr, step, finish,
                               nullptr);
}

} // namespace

void AddAggregates(sqlite3* connection) {
    AddAggregate(connection, "vestrel_first", 2, Keep<false>, AnswerKept);
    AddAggregate(connection, "vestrel_last", 2, Keep<true>, AnswerKept);
    AddAggregate(connection, "vestrel_stdev", 1, AddToSpread, AnswerSpread<true>);
    AddAggregate(connection, "vestrel_var", 1, AddToSpread, AnswerSpread<false>);
}

} // namespace platform::dialect

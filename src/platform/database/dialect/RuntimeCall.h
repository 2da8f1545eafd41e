#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace platform::dialect {

/// The arguments and the result of one call of a runtime function. A function that throws fails the
/// statement with the exception's message; one that sets no result returns null.
class RuntimeCall {
  public:
    RuntimeCall(sqlite3_context* context, int count, sqlite3_value** arguments)
        : context_(context), count_(count), arguments_(arguments) {}

    int Count() const { return count_; }
    bool AnyNull() const {
        for (int i = 0; i < count_; ++i) {
            if (IsNull(i)) return true;
        }
        return false;
    }
    bool IsNull(int i) const { return sqlite3_value_type(arguments_[i]) == SQLITE_NULL; }
    bool IsText(int i) const { return sqlite3_value_type(arguments_[i]) == SQLITE_TEXT; }
    bool IsWhole(int i) const { return sqlite3_value_type(arguments_[i]) == SQLITE_INTEGER; }
    std::int64_t Whole(int i) const { return sqlite3_value_int64(arguments_[i]); }
    double Real(int i) const { return sqlite3_value_double(arguments_[i]); }
    std::string_view Text(int i) const {
        const unsigned char* text = sqlite3_value_text(arguments_[i]);
        const auto size = static_cast<std::size_t>(sqlite3_value_bytes(arguments_[i]));
        return {reinterpret_cast<const char*>(text), text == nullptr ? 0 : size};
    }
    platform::Currency Money(int i) const { return platform::Currency::FromScaled(Whole(i)); }
    /// Returns the day of a date's serial number, without its time.
    platform::Date Day(int i) const;

    void Answer(std::int64_t value) const { sqlite3_result_int64(context_, value); }
    void Answer(double value) const { sqlite3_result_double(context_, value); }
    void Answer(platform::Currency value) const { Answer(value.Scaled()); }
    void Answer(platform::Date value) const { Answer(std::int64_t{value.Serial()}); }
    void Answer(std::string_view text) const {
        sqlite3_result_text(context_, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }
    void AnswerArgument(int i) const { sqlite3_result_value(context_, arguments_[i]); }

  private:
    sqlite3_context* context_;
    int count_;
    sqlite3_value** arguments_;
};

using RuntimeFunction = void (*)(const RuntimeCall& call);

/// Reports an exception to the engine, which is written in C.
template <RuntimeFunction Function>
void RunGuarded(sqlite3_context* context, int count, sqlite3_value** arguments) {
    try {
        Function(RuntimeCall(context, count, arguments));
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

/// Adds a function of `count` arguments. A function that returns null if any argument is null can
/// be wrapped in RunUnlessNull. Within one statement the same arguments give the same result, also
/// for the clock.
template <RuntimeFunction Function>
void AddFunction(sqlite3* connection, const char* name, int count) {
    sqlite3_create_function_v2(connection, name, count, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                               RunGuarded<Function>, nullptr, nullptr, nullptr);
}

template <RuntimeFunction Function>
void RunUnlessNull(const RuntimeCall& call) {
    if (!call.AnyNull()) Function(call);
}

/// Reports a failed conversion: "FIELD can't hold ..." if argument 1 names the field that the value
/// was for, otherwise "... is not WANTED".
[[noreturn]] void ThrowUnfit(const RuntimeCall& call, std::string_view wanted);

// The functions by subject.
void AddTextFunctions(sqlite3* connection);
void AddDateFunctions(sqlite3* connection);
void AddNumberFunctions(sqlite3* connection);
void AddMoneyFunctions(sqlite3* connection);
void AddAggregates(sqlite3* connection);

} // namespace platform::dialect

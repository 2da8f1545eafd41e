#pragma once

#include <string>
#include <utility>
#include <variant>

#include "platform/values/Errors.h"

namespace leases {

/// A field's value, or the reason why it can't be read, which is thrown only when the value is
/// used: a fee that never falls due may be missing.
template <class T>
class Reading {
  public:
    Reading() = default;
    Reading(T value) : held_(std::move(value)) {}

    static Reading Fault(std::string reason) {
        Reading reading;
        reading.held_.template emplace<1>(std::move(reason));
        return reading;
    }

    const T& Get() const {
        if (const auto* reason = std::get_if<1>(&held_)) throw platform::FieldError(*reason);
        return std::get<0>(held_);
    }

  private:
    std::variant<T, std::string> held_;
};

} // namespace leases

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/values/Errors.h"
#include "sumdesk/Exact.h"

namespace sumdesk {

/// A sum that has no result; the text tells the user why.
class SumError : public platform::Error {
  public:
    SumError(const std::string& text, std::size_t position)
        : platform::Error(text), position_(position) {}
    /// Returns the 0-based offset of the fault in the sum's UTF-8 text.
    std::size_t Position() const { return position_; }

  private:
    std::size_t position_;
};

/// A number that was shown rounded. If it appears in a sum as it was shown, the number itself is
/// meant: 10 ÷ 3 is shown as 3.3333333333, and three times that is 10.
struct Remembered {
    std::string shown; ///< without a sign
    Exact number;      ///< not negative
};

struct SumResult {
    Exact number;
    std::string tidy;     ///< the sum as the tape shows it: "12 + 3 × 4"
    bool isPlain = false; ///< a number by itself: nothing was worked out
};

/// Works out a sum: + - × ÷ (also * x /), brackets, signs, numbers as people write them. A
/// percentage that is added or subtracted is that share of what is before it: 200 + 10% is 220;
/// elsewhere 10% is a tenth. A "=" at the end is ignored. Throws SumError.
SumResult WorkOut(std::string_view text, std::span<const Remembered> remembered = {});

} // namespace sumdesk

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sumdesk/Sum.h"

namespace sumdesk {

/// The calculator: works out sums, keeps a number in its memory, and writes a tape.
class Calculator {
  public:
    /// Works out a sum and adds it to the tape; a number by itself is left off the tape. Returns
    /// the result as it is shown, with which the next sum may begin. Throws SumError.
    std::string Enter(std::string_view sum);
    /// Returns what the sum comes to so far, as it would be shown; empty for a number by itself and
    /// for a sum that isn't complete.
    std::string Preview(std::string_view sum) const;

    /// With Cents, results are rounded to cents, and the next sum goes on from the rounded ones.
    void SetDecimals(Decimals decimals) { decimals_ = decimals; }

    // The memory takes the result of a sum, which goes to the tape as in Enter. Each returns the
    // result as shown, and throws SumError.

    std::string Store(std::string_view sum);
    std::string AddToMemory(std::string_view sum);
    std::string SubtractFromMemory(std::string_view sum);
    void ClearMemory();
    bool HasMemory() const { return memory_.has_value(); }
    /// Returns the memory as it is shown; empty if nothing is stored.
    std::string Memory() const;

    /// Adds an entry to the tape: a line, or several with line feeds between them.
    void AddToTape(std::string entry) { tape_.push_back(std::move(entry)); }
    void ClearTape() { tape_.clear(); }
    /// Returns the entries, each ended by a line feed; one of several lines by a blank line too.
    std::string TapeText() const;

  private:
    std::vector<Remembered> KnownNumbers() const;
    Exact RoundedAsShown(const Exact& number) const;
    std::string Keep(const SumResult& result);
    std::string ChangeMemory(std::string_view sum, std::string_view name, int sign);

    Decimals decimals_ = Decimals::AsNeeded;
    Exact last_;
    std::optional<Exact> memory_;
    std::vector<std::string> tape_;
};

} // namespace sumdesk

#pragma once

#include <cstdint>
#include <iterator>

namespace store {

/// Numbers that look random but are the same in every run and on every machine.
class SampleDice {
  public:
    explicit SampleDice(std::uint64_t seed) : state_(seed) {}

    /// Returns a number from 0 to count - 1.
    std::size_t Below(std::size_t count) {
        // Steps and mixing of a 64-bit counter; the top half of the product spreads evenly.
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t bits = state_;
        bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
        bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
        return static_cast<std::size_t>((bits >> 32U) * count >> 32U);
    }
    int Between(int low, int high) {
        return low + static_cast<int>(Below(static_cast<std::size_t>(high - low) + 1));
    }
    bool OneIn(std::size_t count) { return Below(count) == 0; }

    template <typename List>
    const auto& Pick(const List& list) {
        return list[Below(std::size(list))];
    }

  private:
    std::uint64_t state_;
};

} // namespace store

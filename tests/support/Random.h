#pragma once

#include <cstddef>
#include <cstdint>

namespace support {

/// Random numbers that are the same on every machine.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    int Below(int limit) {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(limit));
    }

    template <std::size_t N>
    const char* OneOf(const char* const (&words)[N]) {
        return words[Below(static_cast<int>(N))];
    }

  private:
    std::uint64_t state_;
};

} // namespace support

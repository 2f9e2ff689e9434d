#pragma once

#include <cstdint>

namespace torvane {

// Pseudo-random numbers from 0 up to, and without, 1; the same sequence from each new one.
class RandomNumbers {
public:
    // A linear congruential generator modulo 2^24, the step of a float below 1: a - 1 divisible by 4 and c odd give the
    // full period.
    float next() {
        constexpr std::uint32_t factor = 0x6A4C35;
        constexpr std::uint32_t step = 0x3D0B71;
        constexpr std::uint32_t mask = 0xFFFFFF;
        state_ = (state_ * factor + step) & mask;
        return static_cast<float>(state_) / static_cast<float>(mask + 1);
    }

private:
    std::uint32_t state_ = 0x2B7E5D;
};

}  // namespace torvane

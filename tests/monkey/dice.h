// The monkey's chance: everything it does hangs on one seed.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

class Dice {
  public:
    explicit Dice(std::uint64_t seed) : bits_(seed) {}

    int Below(int limit) { return static_cast<int>(bits_() % static_cast<std::uint64_t>(limit)); }
    int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
    bool One_In(int count) { return Below(count) == 0; }

    template <class Element>
    const Element& Of(const std::vector<Element>& elements) {
        return elements[static_cast<std::size_t>(Below(static_cast<int>(elements.size())))];
    }

  private:
    std::mt19937_64 bits_;
};

// The one that a life is thrown with.
extern Dice Chance;

// A life that brings what no well-behaved disk or instrument has: bytes above 127, cut messages, files that
// change behind the program's back. A life without it holds the records to their ranges.
extern bool Wild_Life;

#include "platform/random.h"

#include <chrono>
#include <random>

namespace {

std::mt19937 Generator;

}  // namespace

Hook<double()> Random_Number;

double Random_Next() {
    if (Random_Number.Filled()) return Random_Number();
    // 32 bits of a double's 53: the quotient never rounds up to 1.
    return static_cast<double>(Generator()) / 4294967296.0;
}

void Random_Seed_By_Clock() {
    Generator.seed(static_cast<std::uint32_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

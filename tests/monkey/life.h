// One life of the program, from its start to its end, with the monkey at it.
#pragma once

#include <cstdint>
#include <string>

struct Life_Plan {
    std::uint64_t seed = 1;
    int life = 0;
    std::int64_t first = 0;   // number of the first event
    std::int64_t events = 0;  // behind so many the program is closed
    std::string folder;       // for its files
    std::string counts;       // file that gets what happened how often
};

// Returns when the program has ended without a finding; the process is fit to end then.
int Life_Run(const Life_Plan& plan, int& argument_count, char** arguments);

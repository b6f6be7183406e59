// Chance: the one source of all that the program leaves to it.
#pragma once

#include <deque>

namespace tabrova {

class Randomness {
  public:
    virtual ~Randomness() = default;
    // From 0 to below 1.
    virtual double fraction() = 0;
};

class SystemRandomness : public Randomness {
  public:
    double fraction() override;
};

// The numbers that it was given, in their order; real ones when they have run out.
class GivenRandomness : public SystemRandomness {
  public:
    double fraction() override;
    std::deque<double> given;
};

} // namespace tabrova

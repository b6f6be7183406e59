#include "platform/randomness.h"

#include <QRandomGenerator>

namespace tabrova {

double SystemRandomness::fraction() { return QRandomGenerator::global()->generateDouble(); }

double GivenRandomness::fraction() {
    if (given.empty()) return SystemRandomness::fraction();
    const double number = given.front();
    given.pop_front();
    return number;
}

} // namespace tabrova

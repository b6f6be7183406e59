#include "editing/acts.h"

#include <algorithm>
#include <utility>

namespace tabrova {

void Acts::begin(std::string_view name) {
    if (depth_++ > 0) return;
    name_ = name;
    for (std::size_t i = 0; i < observers_.size(); ++i)
        observers_[i]->actBegins(name);
}

// An observer may act itself, or come and go, when it is told: what it does then is an act of its own.
void Acts::end() {
    if (--depth_ > 0) return;
    const Changes changes = std::exchange(changes_, {});
    const std::string_view name = name_;
    const std::vector<ActObserver*> told = observers_;
    for (ActObserver* observer : told)
        if (std::ranges::find(observers_, observer) != observers_.end()) observer->actEnded(name, changes);
}

} // namespace tabrova

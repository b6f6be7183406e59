#include "editing/acts.h"

#include <algorithm>
#include <utility>

namespace tabrova {

void Acts::remove(ActObserver& observer) {
    std::ranges::replace(observers_, &observer, static_cast<ActObserver*>(nullptr));
    if (telling_ == 0) std::erase(observers_, nullptr);
}

// An observer may act itself, or come and go, when it is told: what it does then is an act of its own, and
// who comes hears of the next one.
template <class Tell>
void Acts::tell(Tell tellOne) {
    ++telling_;
    const std::size_t count = observers_.size();
    for (std::size_t i = 0; i < count; ++i)
        if (observers_[i]) tellOne(*observers_[i]);
    if (--telling_ == 0) std::erase(observers_, nullptr);
}

void Acts::begin(std::string_view name) {
    if (depth_++ > 0) return;
    name_ = name;
    tell([name](ActObserver& observer) { observer.actBegins(name); });
}

void Acts::end() {
    if (--depth_ > 0) return;
    const Changes changes = std::exchange(changes_, {});
    const std::string_view name = name_;
    tell([&changes, name](ActObserver& observer) { observer.actEnded(name, changes); });
}

ActInterlude::ActInterlude(Acts& acts)
    : acts_(acts), name_(acts.name_), changes_(std::exchange(acts.changes_, {})),
      depth_(std::exchange(acts.depth_, 0)) {}

ActInterlude::~ActInterlude() {
    acts_.name_ = name_;
    acts_.changes_ = changes_;
    acts_.depth_ = depth_;
}

} // namespace tabrova

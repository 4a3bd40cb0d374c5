#include "runtime/core/scheduling/ScreenWatch.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

namespace {

std::vector<ScreenWatch*> watches;

}  // namespace

ScreenWatch::ScreenWatch(std::function<void()> changed) : changed_(std::move(changed)) {
  watches.push_back(this);
  if (watches.size() == 1) desktop().screenReader().watch(callAll);
}

ScreenWatch::~ScreenWatch() {
  std::erase(watches, this);
  if (watches.empty()) desktop().screenReader().watch({});
}

// A call may destroy any watch, even its own.
void ScreenWatch::callAll() {
  const std::vector<ScreenWatch*> all = watches;
  for (ScreenWatch* watch : all) {
    if (std::find(watches.begin(), watches.end(), watch) == watches.end()) continue;
    const auto changed = watch->changed_;
    changed();
  }
}

}  // namespace tavrelkin

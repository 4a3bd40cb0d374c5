#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/desktop/portal/PointerMerge.h"

namespace tavrelkin {
namespace {

using namespace std::chrono_literals;

// One event, and the pointer's place by the events after it: "-" if they don't give it.
struct Step {
  std::chrono::milliseconds at;
  enum class Kind { stream, event, otherWindow, leave, ask } kind;
  ScreenPoint place{};
  std::string wanted{};
};

struct Row {
  const char* name;
  std::vector<Step> steps;
};

constexpr auto kStream = Step::Kind::stream;
constexpr auto kEvent = Step::Kind::event;
constexpr auto kOtherWindow = Step::Kind::otherWindow;
constexpr auto kLeave = Step::Kind::leave;
constexpr auto kAsk = Step::Kind::ask;

std::string text(const std::optional<ScreenPoint>& at) {
  return at ? std::to_string(at->x) + "," + std::to_string(at->y) : "-";
}

TEST(PointerMergeTest, KnowsThePlaceOfTheNewestEvent) {
  const Row rows[] = {
      {"the stream alone", {{0ms, kStream, {100, 150}}, {500ms, kAsk, {}, "-"}}},
      {"no rest yet", {{0ms, kEvent, {71, 91}}, {20ms, kStream, {100, 150}}, {90ms, kAsk, {}, "-"}}},
      {"the stream moved a moment ago", {{0ms, kEvent, {71, 91}}, {80ms, kStream, {100, 150}}, {170ms, kAsk, {}, "-"}}},
      {"the stream has not moved yet", {{0ms, kStream, {100, 150}}, {5ms, kEvent, {71, 91}}, {190ms, kAsk, {}, "-"}}},
      {"the stream moves without an event",
       {{0ms, kEvent, {71, 91}}, {20ms, kStream, {100, 150}}, {500ms, kStream, {7, 8}}, {501ms, kAsk, {}, "-"}}},
      {"both have rested", {{0ms, kEvent, {71, 91}}, {20ms, kStream, {100, 150}}, {120ms, kAsk, {}, "100,150"}}},
      {"the event leads after a rest",
       {{0ms, kEvent, {71, 91}}, {20ms, kStream, {100, 150}}, {200ms, kEvent, {81, 95}}, {201ms, kAsk, {}, "110,154"}}},
      {"it leads out of the window, and to the left of the screen",
       {{0ms, kEvent, {71, 91}},
        {20ms, kStream, {100, 150}},
        {200ms, kEvent, {-300, 0}},
        {201ms, kAsk, {}, "-271,59"}}},
      {"a press in place does not end the rest",
       {{0ms, kEvent, {5, 5}}, {20ms, kStream, {30, 30}}, {100ms, kEvent, {5, 5}}, {121ms, kAsk, {}, "30,30"}}},
      {"a wrong place is corrected at the next rest",
       {{0ms, kEvent, {5, 5}},
        {20ms, kStream, {30, 30}},
        {200ms, kEvent, {6, 6}},
        {230ms, kStream, {131, 131}},
        {231ms, kAsk, {}, "31,31"},
        {340ms, kAsk, {}, "131,131"}}},
      {"the pointer leaves",
       {{0ms, kEvent, {5, 5}}, {20ms, kStream, {30, 30}}, {200ms, kLeave}, {201ms, kAsk, {}, "-"}}},
      {"the place was the other window's",
       {{0ms, kEvent, {5, 5}}, {20ms, kStream, {30, 30}}, {200ms, kOtherWindow, {6, 6}}, {201ms, kAsk, {}, "-"}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    PointerMerge merge;
    std::optional<PointerMerge::Stream> stream;
    for (const Step& step : row.steps) {
      const PointerMerge::TimePoint now{step.at};
      if (step.kind == kStream) stream = {step.place, now};
      if (step.kind == kEvent) merge.moved(1, step.place, stream, now);
      if (step.kind == kOtherWindow) merge.moved(2, step.place, stream, now);
      if (step.kind == kLeave) merge.forget();
      if (step.kind == kAsk) {
        EXPECT_EQ(text(merge.place(stream, now)), step.wanted) << step.at.count() << " ms";
      }
    }
  }
}

}  // namespace
}  // namespace tavrelkin

#include "runtime/desktop/portal/CastStreams.h"

#include <QVariantMap>

#include "runtime/desktop/portal/DBus.h"

namespace tavrelkin {

namespace {

constexpr int farthest = 1 << 20;
constexpr int largest = 1 << 16;

struct Pair {
  int first = 0;
  int second = 0;

  bool isWithin(int least, int most) const {
    return first >= least && first <= most && second >= least && second <= most;
  }
};

// The pair of integers in `value`; nothing if it holds anything else, or if an integer is out of range.
std::optional<Pair> pairOf(const QVariant& value, int least, int most) {
  const auto argument = argumentOf(value, "(ii)");
  if (!argument) return std::nullopt;
  Pair result;
  argument->beginStructure();
  *argument >> result.first >> result.second;
  argument->endStructure();
  if (!result.isWithin(least, most)) return std::nullopt;
  return result;
}

CastStream castStream(const QDBusArgument& argument) {
  CastStream result;
  QVariantMap properties;
  argument.beginStructure();
  argument >> result.node >> properties;
  argument.endStructure();
  if (const auto at = pairOf(properties.value(QStringLiteral("position")), -farthest, farthest))
    result.position = ScreenPoint{at->first, at->second};
  if (const auto size = pairOf(properties.value(QStringLiteral("size")), 1, largest))
    result.size = CastStream::Size{size->first, size->second};
  return result;
}

}  // namespace

std::optional<std::vector<CastStream>> castStreams(const QVariant& value) {
  const auto argument = argumentOf(value, "a(ua{sv})");
  if (!argument) return std::nullopt;
  std::vector<CastStream> result;
  argument->beginArray();
  while (!argument->atEnd() && result.size() <= kMostStreams)
    result.push_back(castStream(*argument));
  argument->endArray();
  if (result.empty() || result.size() > kMostStreams) return std::nullopt;
  return result;
}

}  // namespace tavrelkin

#include <memory>

#include <QColor>
#include <QMimeData>

#include <gtest/gtest.h>

#include "runtime/qt/Drags.h"

namespace tavrelkin {
namespace {

TEST(DragTest, AForeignColourComesInAsThePrivateTypeUnlessItIsMalformed) {
  QMimeData foreign;
  foreign.setColorData(QColor(1, 2, 3));
  EXPECT_EQ(fromMime(foreign)->MacData("hcol"), "1, 2, 3");
  QMimeData malformed;
  malformed.setData("application/x-color", "abc");
  EXPECT_FALSE(fromMime(malformed)->MacDataAvailable("hcol"));
}

TEST(DragTest, TextComesInUnderEitherOfItsNames) {
  QMimeData named;
  named.setData("text/plain;charset=utf-8", "#00C0FF");
  EXPECT_EQ(fromMime(named)->Text(), "#00C0FF");
  QMimeData plain;
  plain.setData("text/plain", "#C000FF");
  EXPECT_EQ(fromMime(plain)->Text(), "#C000FF");
}

}  // namespace
}  // namespace tavrelkin

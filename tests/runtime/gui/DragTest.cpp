#include <memory>

#include <QColor>
#include <QMimeData>

#include <gtest/gtest.h>

#include "runtime/qt/Drags.h"

namespace tavrelkin {
namespace {

TEST(DragTest, AColourGoesOutInThreeFormsAndComesBack) {
  const Ref<DragItem> item = New<DragItem>();
  item->MacData("hcol", "255, 128, 0");
  item->SetText("#FF8000");
  const std::unique_ptr<QMimeData> data = toMime(*item);
  EXPECT_EQ(qvariant_cast<QColor>(data->colorData()), QColor(255, 128, 0));
  EXPECT_EQ(data->text(), "#FF8000");
  const Ref<DragItem> back = fromMime(*data);
  EXPECT_EQ(back->MacData("hcol"), "255, 128, 0");
  EXPECT_EQ(back->Text(), "#FF8000");
}

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

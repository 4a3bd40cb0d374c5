#pragma once

#include <memory>

#include "runtime/core/exchange/DragItem.h"

class QDropEvent;
class QMimeData;
class QRect;
class QWidget;

namespace tavrelkin {

// Convert between a drag item and the MIME data that programs exchange. Private data has a MIME type of its own. A
// colour ("hcol": three numbers, separated by commas) is also sent as application/x-color. A received
// application/x-color becomes "hcol", unless there is an "hcol" or the data is malformed. A drag of files or links
// gives no text, although its data has their addresses as text.
std::unique_ptr<QMimeData> toMime(const DragItem& item);
Ref<DragItem> fromMime(const QMimeData& data);

// An item with all the types of a drag, but empty data. No data is requested from the source of the drag, so a drag of
// any size can move over the windows without delay.
Ref<DragItem> offeredBy(const QMimeData& data);

// An item with the data of a drop. Data from another program is read within the limits of Offer.
Ref<DragItem> fromDrop(const QDropEvent& event);

// Drags an item. `outline` is the rectangle that the pointer carries, in coordinates of `content`, at its place at the
// start. Returns when the drag is over.
void beginDrag(const DragItem& item, QWidget& content, const QRect& outline);

}  // namespace tavrelkin

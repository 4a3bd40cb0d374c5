#pragma once

#include <memory>

#include "runtime/core/exchange/DragItem.h"

class QDropEvent;
class QMimeData;
class QRect;
class QWidget;

namespace tavrelkin {

// What a drag item is to other programs, and what their drags are to this one. Private data travels under a MIME type
// of its own; a colour ("hcol", three numbers with commas between them) goes along as application/x-color as well, and
// a foreign application/x-color comes in as "hcol" where there is none. A malformed one counts as absent. A drag of
// files or links carries no text: their addresses, which it has as text, are no text that a user dragged.
std::unique_ptr<QMimeData> toMime(const DragItem& item);
Ref<DragItem> fromMime(const QMimeData& data);

// What a drag offers: an item with the types, all of them empty. Its source is not asked, so that a drag may pass over
// the windows whatever it carries.
Ref<DragItem> offeredBy(const QMimeData& data);

// What a drop carries. What another program sends is read within the bounds of an Offer.
Ref<DragItem> fromDrop(const QDropEvent& event);

// Drags an item out of a window, whose content has the outline at the given place. Returns when the drag is over.
void beginDrag(const DragItem& item, QWidget& content, const QRect& outline);

}  // namespace tavrelkin

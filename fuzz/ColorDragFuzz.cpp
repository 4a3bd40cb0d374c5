// A drag from another program. The input is a list of formats: a digit for the format, a length, and that many bytes.

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>

#include <QColor>
#include <QMimeData>

#include "color/zrColorLib.h"
#include "controls/ColorDrag.h"
#include "fuzz/support/Target.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Drags.h"

namespace tavrelkin {
namespace {

// The formats of bytes; a digit is the index of its format. Two more digits are a colour in the toolkit's form, and a
// private type whose name is in the bytes.
constexpr const char* kPrivate = "application/x-tavrelkin-hcol";
constexpr const char* kPlainText = "text/plain;charset=utf-8";
constexpr const char* kFormats[] = {
    kPrivate, "application/x-color", "text/plain", kPlainText, "text/uri-list", "text/html",
};
constexpr std::size_t kColor = 6;
constexpr std::size_t kOtherType = 7;

// Reads the desktop's colour type as the toolkit does: four channels of two bytes.
QColor platformColor(std::string_view bytes) {
  const auto word = [bytes](Int32 n) {
    return static_cast<quint16>(AscB(MidB(bytes, 2 * n + 1)) << 8 | AscB(MidB(bytes, 2 * n + 2)));
  };
  return QColor::fromRgba64(word(0), word(1), word(2), word(3));
}

void add(QMimeData& drag, char digit, const String& bytes) {
  const auto format = static_cast<std::size_t>(digit & 7);
  if (format == kColor) {
    drag.setColorData(platformColor(bytes));
  } else if (format == kOtherType) {
    drag.setData("application/x-tavrelkin-" + toQt(bytes), "other");
  } else {
    drag.setData(kFormats[format], QByteArray::fromStdString(bytes));
  }
}

std::unique_ptr<QMimeData> dragOf(std::string_view input) {
  auto drag = std::make_unique<QMimeData>();
  while (input.size() >= 2) {
    const Int32 length = AscB(input.substr(1));
    add(*drag, input.front(), MidB(input, 3, length));
    input.remove_prefix(std::min(input.size(), static_cast<std::size_t>(length) + 2));
  }
  return drag;
}

std::optional<Color> taken(const Ref<DragItem>& item) {
  Color fromBlack = kBlack;
  Color fromWhite = kWhite;
  const bool takes = ColorDrag::take(item, fromBlack);
  require(ColorDrag::take(item, fromWhite) == takes, "the colour before plays no part");
  if (takes) {
    require(fromBlack == fromWhite, "an item that is taken gives its colour");
    return fromBlack;
  }
  require(fromBlack == kBlack && fromWhite == kWhite, "a refused item leaves the colour alone");
  return std::nullopt;
}

std::optional<Color> colorOfText(const DragItem& item) {
  Color c;
  if (!item.TextAvailable() || !getColorFromString(item.Text(), c)) return std::nullopt;
  return c;
}

void checkRead(const QMimeData& drag, const Ref<DragItem>& item) {
  const std::optional<Color> color = taken(item);
  const auto desktops = qvariant_cast<QColor>(drag.colorData());
  if (drag.hasFormat(kPrivate)) {
    const String payload = drag.data(kPrivate).toStdString();
    require(item->MacData("hcol") == payload, "a payload comes in as it is");
    require(color == getColorFromRGB(payload), "the private type comes first");
  } else if (desktops.isValid()) {
    require(color == RGB(desktops.red(), desktops.green(), desktops.blue()), "the desktop's colour comes before text");
  } else {
    require(!item->MacDataAvailable("hcol"), "a malformed colour counts as absent");
    require(color == colorOfText(*item), "a text is all that is left");
  }
  const bool hasText = !drag.hasUrls() && (drag.hasText() || drag.hasFormat(kPlainText));
  require(item->TextAvailable() == hasText, "a text has either of two names, and doesn't come with addresses");
  const Ref<DragItem> offered = offeredBy(drag);
  for (const String& type : item->MacDataTypes())
    require(offered->MacDataAvailable(type), "what comes in was offered");
  require(offered->TextAvailable() == hasText, "the same text is offered as comes in");
}

// Checks what two programs receive of an item: another copy of this program, and one that knows only the desktop's
// colour type.
void checkSent(const Ref<DragItem>& item) {
  const std::unique_ptr<QMimeData> sent = toMime(*item);
  const Ref<DragItem> again = fromMime(*sent);
  require(again->MacDataTypes() == item->MacDataTypes(), "all types come back");
  for (const String& type : item->MacDataTypes())
    require(again->MacData(type) == item->MacData(type), "a payload comes back");
  require(again->TextAvailable() == item->TextAvailable(), "a text comes back where there is one");
  require(again->Text() == fromQt(toQt(item->Text())), "a text comes back as well-formed UTF-8");
  if (!item->MacDataAvailable("hcol")) return;
  QMimeData colorOnly;
  colorOnly.setColorData(sent->colorData());
  require(taken(fromMime(colorOnly)) == taken(item), "the desktop's colour is that of the payload");
}

}  // namespace
}  // namespace tavrelkin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tavrelkin;
  // The toolkit warns about each text that does not name a colour.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const String input(data, data + size);
  const std::unique_ptr<QMimeData> drag = dragOf(input);
  const Ref<DragItem> item = fromMime(*drag);
  checkRead(*drag, item);
  checkSent(item);
  return 0;
}

#include "runtime/desktop/native/WaylandModule.h"

#include <QCoreApplication>
#include <QLibrary>

namespace tavrelkin {

const WaylandModule* loadWaylandModule() {
  using Entry = const WaylandModule* (*)();
  for (const char* const folder : {"/", "/" TAVRELKIN_MODULE_FOLDER "/"}) {
    QLibrary module(QCoreApplication::applicationDirPath() + folder + "tavrelkin-wayland.so");
    if (const auto entry = reinterpret_cast<Entry>(module.resolve("tavrelkinWaylandModule"))) return entry();
  }
  return nullptr;
}

}  // namespace tavrelkin

#include "runtime/toolkit/Application.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QMetaObject>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/widgets/WindowWidget.h"

namespace tavrelkin {

namespace {

Application* instance = nullptr;

// With a menu bar outside of the windows, the user can use a program that has no window.
#ifdef Q_OS_MACOS
constexpr bool kStaysWithoutWindow = true;
#else
constexpr bool kStaysWithoutWindow = false;
#endif

void quitIfNothingIsOpen() {
  if (instance && instance->openWindows().empty()) QCoreApplication::quit();
}

}  // namespace

Application::Application() : MenuBar(nullptr, [this](const Ref<tavrelkin::MenuBar>&) { enableMenuItems(); }) {
  instance = this;
}

Application::~Application() {
  unblockAll();
  if (instance == this) instance = nullptr;
}

Application& Application::current() {
  if (!instance) throw NilObjectException();
  return *instance;
}

// Qt closes all windows first. It does not quit if a window refuses to close, as a blocked window does.
void Application::Quit() {
  unblockAll();
  QCoreApplication::quit();
}

bool Application::dispatch(const String& itemName) {
  return deliver([&] {
    const Ref<Window> front(frontWindow());
    return (front && front->menuHandlers().run(itemName)) || handlers_.run(itemName);
  });
}

void Application::enableMenuItems() {
  if (MenuBar.get()) enable(MenuBar->menus());
}

void Application::enable(const std::vector<Ref<MenuItem>>& items) {
  const Window* front = frontWindow();
  for (const Ref<MenuItem>& item : items) {
    if (!item->items().empty()) {
      enable(item->items());
      continue;
    }
    if (!item->AutoEnable || item->isSeparator()) continue;
    const bool taken = (front && front->menuHandlers().has(item->Name())) || handlers_.has(item->Name());
    item->Enabled = taken || item->answersItself();
  }
}

void Application::unblockAll() {
  for (const Ref<Window>& each : openWindows_)
    each->setBlocker(nullptr);
}

void Application::windowShown(Window& window) {
  window.setBlocker(nullptr);
  for (const Ref<Window>& other : openWindows_)
    if (window.isModal() && other.get() != &window && !other->blocker()) other->setBlocker(&window);
  if (!window.MenuBar.get() && MenuBar.get()) MenuBar->attachKeysTo(window.native());
  windowInFront(window);
}

void Application::windowInFront(Window& window) {
  Ref<Window> front(&window);
  const auto found = std::find(openWindows_.begin(), openWindows_.end(), front);
  if (found != openWindows_.end()) openWindows_.erase(found);
  openWindows_.push_back(front);
  enableMenuItems();
}

void Application::windowClosed(Window& window) {
  std::erase_if(defaults_, [&](const auto& entry) { return entry.second == &window; });
  std::erase(openWindows_, Ref<Window>(&window));
  enableMenuItems();
  // Loops over a copy: unblock() may bring a window to the front, which changes the list.
  for (const Ref<Window>& other : std::vector(openWindows_))
    if (other->blocker() == &window) other->unblock();
  if (openWindows_.empty() && !kStaysWithoutWindow) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), quitIfNothingIsOpen, Qt::QueuedConnection);
  }
}

}  // namespace tavrelkin

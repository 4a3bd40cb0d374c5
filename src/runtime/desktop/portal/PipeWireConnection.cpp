#include "runtime/desktop/portal/PipeWireConnection.h"

#include <cerrno>
#include <cstdint>
#include <utility>

#include <pipewire/pipewire.h>

namespace tavrelkin {

struct PipeWireConnection::Listener {
  static void error(void* data, std::uint32_t id, int, int result, const char*) {
    if (id == PW_ID_CORE && result == -EPIPE) static_cast<Listener*>(data)->broken();
  }

  std::function<void()> broken;
  pw_core_events events{};
  spa_hook hook{};
};

void PipeWireConnection::Destroy::operator()(pw_thread_loop* loop) const {
  pw_thread_loop_destroy(loop);
}

void PipeWireConnection::Destroy::operator()(pw_context* context) const {
  pw_context_destroy(context);
}

void PipeWireConnection::Destroy::operator()(pw_core* core) const {
  pw_core_disconnect(core);
}

std::unique_ptr<PipeWireConnection> PipeWireConnection::open(FileDescriptor socket, std::function<void()> broken) {
  static const bool isReady = [] {
    pw_init(nullptr, nullptr);
    return true;
  }();
  static_cast<void>(isReady);

  std::unique_ptr<PipeWireConnection> connection(new PipeWireConnection(std::move(broken)));
  return connection->connect(std::move(socket)) ? std::move(connection) : nullptr;
}

PipeWireConnection::PipeWireConnection(std::function<void()> broken) : listener_(std::make_unique<Listener>()) {
  listener_->broken = std::move(broken);
  listener_->events.version = PW_VERSION_CORE_EVENTS;
  listener_->events.error = &Listener::error;
}

bool PipeWireConnection::connect(FileDescriptor socket) {
  loop_.reset(pw_thread_loop_new("screen", nullptr));
  if (!loop_) return false;
  context_.reset(pw_context_new(pw_thread_loop_get_loop(loop_.get()), nullptr, 0));
  if (!context_) return false;
  core_.reset(pw_context_connect_fd(context_.get(), socket.release(), nullptr, 0));
  if (!core_) return false;
  // PipeWire's macro for this does not compile as C++.
  auto* const proxy = reinterpret_cast<pw_proxy*>(core_.get());
  pw_proxy_add_object_listener(proxy, &listener_->hook, &listener_->events, listener_.get());
  return true;
}

PipeWireConnection::~PipeWireConnection() {
  stop();
  if (core_) spa_hook_remove(&listener_->hook);
}

bool PipeWireConnection::start() {
  return pw_thread_loop_start(loop_.get()) == 0;
}

void PipeWireConnection::stop() {
  if (loop_) pw_thread_loop_stop(loop_.get());
}

PipeWireConnection::Lock::Lock(const PipeWireConnection& connection) : loop_(connection.loop_.get()) {
  pw_thread_loop_lock(loop_);
}

PipeWireConnection::Lock::~Lock() {
  pw_thread_loop_unlock(loop_);
}

}  // namespace tavrelkin

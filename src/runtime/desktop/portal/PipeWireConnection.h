#pragma once

#include <functional>
#include <memory>

#include "runtime/desktop/portal/ScreenCast.h"

struct pw_context;
struct pw_core;
struct pw_thread_loop;

namespace tavrelkin {

// A connection to PipeWire, and the thread that receives its events.
class PipeWireConnection {
 public:
  // Opens a connection on a connected socket and takes over its descriptor. `broken` is called on the thread when the
  // connection ends. Null if PipeWire's modules or its configuration are missing.
  static std::unique_ptr<PipeWireConnection> open(FileDescriptor socket, std::function<void()> broken);

  PipeWireConnection(const PipeWireConnection&) = delete;
  PipeWireConnection& operator=(const PipeWireConnection&) = delete;
  ~PipeWireConnection();

  // Starts the thread. False if no thread can be started. While the thread runs, only it may use the connection and the
  // objects made on it; other threads need a Lock. Before start() and after stop(), any thread may use them.
  bool start();

  // Stops the thread and returns when it has ended. Does nothing if the thread isn't running. The objects made on the
  // connection must be destroyed after stop() and before the connection.
  void stop();

  pw_core* core() const { return core_.get(); }

  // While it lives, the thread delivers no events.
  class Lock {
   public:
    explicit Lock(const PipeWireConnection& connection);
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock();

   private:
    pw_thread_loop* loop_;
  };

 private:
  struct Listener;
  struct Destroy {
    void operator()(pw_thread_loop* loop) const;
    void operator()(pw_context* context) const;
    void operator()(pw_core* core) const;
  };

  explicit PipeWireConnection(std::function<void()> broken);
  bool connect(FileDescriptor socket);

  std::unique_ptr<Listener> listener_;
  std::unique_ptr<pw_thread_loop, Destroy> loop_;
  std::unique_ptr<pw_context, Destroy> context_;
  std::unique_ptr<pw_core, Destroy> core_;
};

}  // namespace tavrelkin

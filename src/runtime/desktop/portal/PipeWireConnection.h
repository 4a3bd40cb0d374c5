#pragma once

#include <functional>
#include <memory>

#include "runtime/desktop/portal/ScreenCast.h"

struct pw_context;
struct pw_core;
struct pw_thread_loop;

namespace tavrelkin {

// A connection to PipeWire, and the thread on which its events arrive.
class PipeWireConnection {
 public:
  // Takes over the descriptor of a connected socket. `broken` is called on the thread when the connection ends. Null
  // where PipeWire's modules or its configuration are missing.
  static std::unique_ptr<PipeWireConnection> open(FileDescriptor socket, std::function<void()> broken);

  PipeWireConnection(const PipeWireConnection&) = delete;
  PipeWireConnection& operator=(const PipeWireConnection&) = delete;
  ~PipeWireConnection();

  // Starts the thread. Before that, and after stop(), any thread may use the connection and all that was made on it; in
  // between they belong to the thread, and others need a Lock. False where no thread can be started.
  bool start();

  // Returns when the thread has ended. What was made on the connection must be destroyed after it, and before the
  // connection. Does nothing where the thread isn't running.
  void stop();

  pw_core* core() const { return core_.get(); }

  // Keeps the thread from delivering events.
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

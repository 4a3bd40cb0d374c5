#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include <pipewire/pipewire.h>

#include "runtime/desktop/portal/PipeWireConnection.h"

namespace tavrelkin::test {

// Does a session manager's work for screen casts: links each stream that asks for a producer's node to that node.
class StreamLinker {
 public:
  // The thread of the connection must not run yet, or must be locked.
  explicit StreamLinker(const PipeWireConnection& connection);
  StreamLinker(const StreamLinker&) = delete;
  StreamLinker& operator=(const StreamLinker&) = delete;
  // The thread must have ended before.
  ~StreamLinker();

  // The following operations must be called on the thread of the connection. setProducer() sets the node to link to,
  // once it is known.
  void setProducer(std::uint32_t node) { producer_ = node; }

  // Whether the producer's buffers reach a stream. After a change of the format they don't until the link has new
  // buffers.
  bool isReady() const;
  void formatChanged();

 private:
  struct Node;

  void add(std::uint32_t id);
  pw_proxy* link(std::uint32_t consumer) const;

  pw_core* core_;
  pw_registry* registry_;
  pw_registry_events events_{};
  spa_hook hook_{};
  std::uint32_t producer_ = PW_ID_ANY;
  std::map<std::uint32_t, std::unique_ptr<Node>> nodes_;
};

}  // namespace tavrelkin::test

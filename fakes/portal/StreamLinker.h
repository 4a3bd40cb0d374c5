#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include <pipewire/pipewire.h>

#include "runtime/desktop/portal/PipeWireConnection.h"

namespace tavrelkin::test {

// Does what a session manager does for screen casts: links each stream that asks for the node of a producer to it.
class StreamLinker {
 public:
  // The thread of the connection must not run yet, or be locked.
  explicit StreamLinker(const PipeWireConnection& connection);
  StreamLinker(const StreamLinker&) = delete;
  StreamLinker& operator=(const StreamLinker&) = delete;
  // The thread must have ended.
  ~StreamLinker();

  // The operations that follow are for the thread of the connection.
  // The node to link to, as soon as it is known.
  void setProducer(std::uint32_t node) { producer_ = node; }

  // Whether what the producer sends reaches a stream. After a change of the format it doesn't, until the link is made
  // ready for the new buffers.
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

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

  // The node to link to, as soon as it is known. For the thread of the connection.
  void setProducer(std::uint32_t node) { producer_ = node; }

 private:
  struct Node;

  void add(std::uint32_t id);
  void link(std::uint32_t consumer);

  pw_core* core_;
  pw_registry* registry_;
  pw_registry_events events_{};
  spa_hook hook_{};
  std::uint32_t producer_ = PW_ID_ANY;
  std::map<std::uint32_t, std::unique_ptr<Node>> nodes_;
};

}  // namespace tavrelkin::test

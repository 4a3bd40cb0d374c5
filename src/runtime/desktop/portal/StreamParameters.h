#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <spa/pod/builder.h>

namespace tavrelkin {

// The parameters of a stream's negotiation, which PipeWire calls pods, and their memory. The memory is enough for one
// operation.
class StreamParameters {
 public:
  StreamParameters() { spa_pod_builder_init(&builder_, memory_.data(), static_cast<std::uint32_t>(memory_.size())); }
  StreamParameters(const StreamParameters&) = delete;
  StreamParameters& operator=(const StreamParameters&) = delete;

  // Adds an object with these properties. Each property is a key and a value made with one of PipeWire's SPA_POD
  // macros.
  template <class... Properties>
  void add(std::uint32_t type, std::uint32_t id, Properties... properties) {
    spa_pod_frame frame{};
    spa_pod_builder_push_object(&builder_, &frame, type, id);
    spa_pod_builder_add(&builder_, properties..., 0);
    pods_.push_back(static_cast<const spa_pod*>(spa_pod_builder_pop(&builder_, &frame)));
  }

  // The pods in the form that PipeWire takes.
  const spa_pod** data() { return pods_.data(); }
  std::uint32_t count() const { return static_cast<std::uint32_t>(pods_.size()); }

 private:
  alignas(8) std::array<std::byte, 1024> memory_;
  spa_pod_builder builder_{};
  std::vector<const spa_pod*> pods_;
};

}  // namespace tavrelkin

#include "fakes/portal/StreamLinker.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tavrelkin::test {

namespace {

pw_proxy* proxyOf(void* object) {
  return static_cast<pw_proxy*>(object);
}

}  // namespace

// A node of another program, and its link if it asks for the producer. The node's properties name what it asks for.
struct StreamLinker::Node {
  Node(StreamLinker& owner, std::uint32_t id)
      : linker(owner),
        proxy(proxyOf(pw_registry_bind(owner.registry_, id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0))) {
    events.version = PW_VERSION_NODE_EVENTS;
    events.info = [](void* data, const pw_node_info* info) { static_cast<Node*>(data)->note(*info); };
    pw_proxy_add_object_listener(proxy, &hook, &events, this);
    linkEvents.version = PW_VERSION_LINK_EVENTS;
    linkEvents.info = [](void* data, const pw_link_info* info) {
      static_cast<Node*>(data)->isReady = info->state >= PW_LINK_STATE_PAUSED;
    };
  }
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;
  ~Node() {
    spa_hook_remove(&hook);
    pw_proxy_destroy(proxy);
    if (!link) return;
    spa_hook_remove(&linkHook);
    pw_proxy_destroy(link);
  }

  // The properties come only with the first description; the port may come with a later one.
  void note(const pw_node_info& info) {
    const char* const found = info.props ? spa_dict_lookup(info.props, "node.target") : nullptr;
    if (found) target = found;
    if (link || info.n_input_ports == 0 || target != std::to_string(linker.producer_)) return;
    link = linker.link(info.id);
    pw_proxy_add_object_listener(link, &linkHook, &linkEvents, this);
  }

  StreamLinker& linker;
  pw_proxy* proxy;
  pw_node_events events{};
  spa_hook hook{};
  std::string target;
  pw_proxy* link = nullptr;
  pw_link_events linkEvents{};
  spa_hook linkHook{};
  bool isReady = false;
};

StreamLinker::StreamLinker(const PipeWireConnection& connection)
    : core_(connection.core()), registry_(pw_core_get_registry(core_, PW_VERSION_REGISTRY, 0)) {
  events_.version = PW_VERSION_REGISTRY_EVENTS;
  events_.global = [](void* data, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t, const spa_dict*) {
    if (std::string_view(type) == PW_TYPE_INTERFACE_Node) static_cast<StreamLinker*>(data)->add(id);
  };
  events_.global_remove = [](void* data, std::uint32_t id) { static_cast<StreamLinker*>(data)->nodes_.erase(id); };
  pw_proxy_add_object_listener(reinterpret_cast<pw_proxy*>(registry_), &hook_, &events_, this);
}

StreamLinker::~StreamLinker() {
  nodes_.clear();
  spa_hook_remove(&hook_);
  pw_proxy_destroy(reinterpret_cast<pw_proxy*>(registry_));
}

void StreamLinker::add(std::uint32_t id) {
  nodes_.emplace(id, std::make_unique<Node>(*this, id));
}

bool StreamLinker::isReady() const {
  return std::any_of(nodes_.begin(), nodes_.end(), [](const auto& node) { return node.second->isReady; });
}

void StreamLinker::formatChanged() {
  for (const auto& [id, node] : nodes_)
    node->isReady = false;
}

pw_proxy* StreamLinker::link(std::uint32_t consumer) const {
  pw_properties* const properties = pw_properties_new(nullptr, nullptr);
  pw_properties_setf(properties, PW_KEY_LINK_OUTPUT_NODE, "%u", producer_);
  pw_properties_setf(properties, PW_KEY_LINK_INPUT_NODE, "%u", consumer);
  void* const made =
      pw_core_create_object(core_, "link-factory", PW_TYPE_INTERFACE_Link, PW_VERSION_LINK, &properties->dict, 0);
  pw_properties_free(properties);
  return proxyOf(made);
}

}  // namespace tavrelkin::test

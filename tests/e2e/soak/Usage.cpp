#include "e2e/soak/Usage.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <xcb/res.h>

namespace tavrelkin::test {

namespace {

template <class T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
  return {reply, &std::free};
}

std::string folderOf(pid_t process) {
  return "/proc/" + std::to_string(process);
}

// What is mapped from files is shared with others, and comes and goes as the system likes.
int ownMemory(pid_t process) {
  std::ifstream status(folderOf(process) + "/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("RssAnon:")) return std::stoi(line.substr(8));
  return 0;
}

int openFiles(pid_t process) {
  std::error_code gone;
  const std::filesystem::directory_iterator files(folderOf(process) + "/fd", gone);
  return static_cast<int>(std::distance(begin(files), end(files)));
}

// The connections of a process to the display, each named by the base of its resources.
std::vector<std::uint32_t> connections(pid_t process, xcb_connection_t* c) {
  const xcb_res_client_id_spec_t all{0, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
  const auto reply = owned(xcb_res_query_client_ids_reply(c, xcb_res_query_client_ids(c, 1, &all), nullptr));
  std::vector<std::uint32_t> result;
  if (!reply) return result;
  auto ids = xcb_res_query_client_ids_ids_iterator(reply.get());
  for (; ids.rem > 0; xcb_res_client_id_value_next(&ids))
    if (*xcb_res_client_id_value_value(ids.data) == static_cast<std::uint32_t>(process))
      result.push_back(ids.data->spec.client);
  return result;
}

}  // namespace

Usage usageOf(pid_t process, X11Client& client) {
  auto* const c = client.connection();
  Usage result{.memory = ownMemory(process), .handles = openFiles(process)};
  for (const std::uint32_t connection : connections(process, c)) {
    const auto counts =
        owned(xcb_res_query_client_resources_reply(c, xcb_res_query_client_resources(c, connection), nullptr));
    const auto bytes =
        owned(xcb_res_query_client_pixmap_bytes_reply(c, xcb_res_query_client_pixmap_bytes(c, connection), nullptr));
    if (!counts || !bytes) continue;
    auto types = xcb_res_query_client_resources_types_iterator(counts.get());
    for (; types.rem > 0; xcb_res_type_next(&types))
      result.resources += static_cast<int>(types.data->count);
    result.pixmapBytes += static_cast<int>(bytes->bytes / 1024);
  }
  return result;
}

std::ostream& operator<<(std::ostream& stream, const Usage& usage) {
  return stream << usage.memory << " KiB of memory, " << usage.handles << " files, " << usage.resources
                << " resources and " << usage.pixmapBytes << " KiB of pixmaps on the server";
}

}  // namespace tavrelkin::test

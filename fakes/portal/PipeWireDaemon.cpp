#include "fakes/portal/PipeWireDaemon.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include <sys/socket.h>
#include <sys/un.h>

namespace tavrelkin::test {

namespace {

constexpr const char* kConfiguration = R"(
context.properties = { core.daemon = true core.name = pipewire-0 support.dbus = false }
context.spa-libs = { support.* = support/libspa-support videoconvert = videoconvert/libspa-videoconvert }
context.modules = [
  { name = libpipewire-module-protocol-native }
  { name = libpipewire-module-metadata }
  { name = libpipewire-module-spa-node-factory }
  { name = libpipewire-module-client-node }
  { name = libpipewire-module-access }
  { name = libpipewire-module-adapter }
  { name = libpipewire-module-link-factory }
  { name = libpipewire-module-session-manager }
]
)";

FileDescriptor connectTo(const std::filesystem::path& path) {
  FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.string().copy(address.sun_path, sizeof(address.sun_path) - 1);
  if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) return {};
  return socket;
}

}  // namespace

PipeWireDaemon::PipeWireDaemon() : process_({"pipewire", "-c", writeConfiguration()}, home_.environment({})) {
  const auto isUp = [this] { return connectTo(home_.path() / "runtime" / "pipewire-0").get() >= 0; };
  if (!waitUntil(isUp)) throw std::runtime_error("PipeWire did not start. " + process_.errors());
}

std::filesystem::path PipeWireDaemon::writeConfiguration() const {
  std::filesystem::path path = home_.path() / "pipewire.conf";
  std::ofstream(path) << kConfiguration;
  return path;
}

FileDescriptor PipeWireDaemon::connect() const {
  FileDescriptor socket = connectTo(home_.path() / "runtime" / "pipewire-0");
  if (socket.get() < 0) throw std::system_error(errno, std::generic_category(), "PipeWire");
  return socket;
}

}  // namespace tavrelkin::test

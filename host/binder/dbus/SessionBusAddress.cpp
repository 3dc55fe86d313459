#include "host/SessionBusAddress.h"

#include <unistd.h>

#include <cstdlib>

namespace android::host::dbus {

namespace {

std::string variable(const char* name) {
    const char* const value = getenv(name);
    return value != nullptr ? value : "";
}

// Escaped as a value within a D-Bus address.
std::string escaped(const std::string& path) {
    std::string text;
    for (const char c : path) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                           (c >= '0' && c <= '9') || c == '-' || c == '_' || c == '/' || c == '.';
        constexpr char kDigits[] = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(c);
        text += plain ? std::string(1, c)
                      : std::string{'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return text;
}

}  // namespace

std::string sessionBusAddress() {
    const std::string address = variable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.empty()) return address;
    const std::string directory = variable("XDG_RUNTIME_DIR");
    const std::string socket = directory + "/bus";
    if (directory.empty() || access(socket.c_str(), F_OK) != 0) return "";
    return "unix:path=" + escaped(socket);
}

}  // namespace android::host::dbus

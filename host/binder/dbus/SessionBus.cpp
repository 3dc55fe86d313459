#define LOG_TAG "BinderBus"

#include "SessionBus.h"

#include <log/log.h>
#include <pthread.h>
#include <unistd.h>

#include <cstdlib>
#include <mutex>
#include <stdexcept>

#include "DBusCarrier.h"
#include "host/SessionBusAddress.h"

namespace android::host {

namespace dbus {

namespace {

DBusCarrier* gCarrier = nullptr;

std::string variable(const char* name) {
    const char* const value = getenv(name);
    return value != nullptr ? value : "";
}

// As the value of an address wants it.
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

void connect() {
    const std::string address = sessionBusAddress();
    if (address.empty()) return;
    try {
        gCarrier = new DBusCarrier(address);
        setCarrier(gCarrier);
        // A child that does not become another program shares the connection's socket but has none
        // of its threads.
        pthread_atfork(nullptr, nullptr, [] { setCarrier(nullptr); });
    } catch (const std::runtime_error& error) {  // of the bus, or of a thread that cannot be had
        ALOGW("The session bus at %s cannot be reached, so this process is on its own: %s",
              address.c_str(), error.what());
    }
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

DBusCarrier* sessionCarrier() {
    return gCarrier;
}

}  // namespace dbus

void connectCarrier() {
    static std::once_flag once;
    std::call_once(once, [] {
        if (carrier() == nullptr) dbus::connect();
    });
}

}  // namespace android::host

#define LOG_TAG "BinderBus"

#include "SessionCarrier.h"

#include <log/log.h>
#include <pthread.h>

#include <mutex>
#include <stdexcept>

#include "DBusCarrier.h"
#include "host/SessionBusAddress.h"

namespace android::host {

namespace dbus {

namespace {

DBusCarrier* gCarrier = nullptr;

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

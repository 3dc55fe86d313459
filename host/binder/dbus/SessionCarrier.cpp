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
        // A forked child that runs no other program shares the connection's socket but has none of
        // its threads.
        pthread_atfork(nullptr, nullptr, [] { setCarrier(nullptr); });
    } catch (const std::runtime_error& error) {  // no bus, or no thread
        ALOGW("The session bus at %s cannot be reached; this process finds its own services only: "
              "%s",
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

#pragma once

#include <array>

#include "host/binder/dbus/BusLink.h"

namespace tarn::fuzz {

/** A link to no bus, for what only keeps it: nothing may be sent. */
inline android::host::dbus::BusLink& noLink() {
    using android::host::dbus::BusLink;
    alignas(BusLink) static std::array<char, sizeof(BusLink)> memory;
    return *reinterpret_cast<BusLink*>(memory.data());
}

}  // namespace tarn::fuzz

#include "Carrier.h"

#include <atomic>

namespace android::host {

namespace {

std::atomic<Carrier*> gCarrier{nullptr};

}  // namespace

Carrier* carrier() {
    return gCarrier.load(std::memory_order_acquire);
}

void setCarrier(Carrier* newCarrier) {
    gCarrier.store(newCarrier, std::memory_order_release);
}

}  // namespace android::host

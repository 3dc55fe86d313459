#include <tarn/TarnClient.h>
#include <unistd.h>

#include <cstdint>
#include <memory>

#include "service/ServiceReference.h"

#define TARN_LOG_TAG "Zunt@TarnClient"
#include "log/Log.h"

namespace android {

TarnClient::TarnClient(const sp<ITarnClientCallback>& callback) : mCallback(callback) {
    TLOGD("constructor");
}

TarnClient::~TarnClient() {
    TLOGD("destructor");
}

int TarnClient::connect() {
    TLOGD("connect TarnServer");
    const sp<ITarnService> service = holdTarnService(this);
    if (service != nullptr) service->connect(getpid(), this);
    return 0;
}

status_t TarnClient::invoke(const Parcel& data, Parcel* reply) {
    const sp<ITarnService> service = holdTarnService(this);
    if (service == nullptr) return -1;
    return service->invoke(data, reply);
}

void TarnClient::notify(unsigned int msgType, void* data, unsigned int size, void* ext) {
    // Before the callback: it may hand the same bytes on to other clients of this process.
    const std::unique_ptr<uint8_t[]> owned(takeBuffer(data) ? static_cast<uint8_t*>(data)
                                                            : nullptr);
    AutoMutex guard(mLock);
    TLOGD("callback application type=%d", static_cast<int>(msgType));
    if (mCallback != nullptr) mCallback->notify(msgType, data, size, ext);
    TLOGD("back from callback");
}

void TarnClient::setCallback(const sp<ITarnClientCallback>& callback) {
    AutoMutex guard(mLock);
    mCallback = callback;
}

}  // namespace android

#include <tarn/TarnManager.h>

// Complete types, for the controller references that the destructor releases.
#include <tarn/Controllers.h>

#include "core/HwTarnClient.h"

#define TARN_LOG_TAG "Zunt@TarnManager"
#include "log/Log.h"

namespace android {

TarnManager::TarnManager() : TarnManager(new HwTarnClient) {}

TarnManager::TarnManager(const sp<HwTarnClient>& client) : mHwTarnClient(client) {}

TarnManager::~TarnManager() {
    // Before the controllers go: the transport's end empties the process-wide proxy and looper.
    mHwTarnClient.clear();
}

int TarnManager::invoke(const Parcel& request, Parcel* reply) {
    Parcel data;
    data.appendFrom(&request, 0, request.dataSize());
    if (mHwTarnClient == nullptr) return -1;
    if (mHwTarnClient->hw_invoke(data, reply) != 0) {
        TLOGE("invoke failure !");
        return -1;
    }
    reply->setDataPosition(0);
    const int status = reply->readInt32();
    reply->setDataPosition(0);
    return status;
}

int TarnManager::postEvent(int what, Parcel& data) {
    if (mHwTarnClient == nullptr) return -1;
    if (mHwTarnClient->postEvent(what, data) != 0) {
        TLOGE("invoke failure !");
        return -1;
    }
    return 0;
}

int TarnManager::registerListener(ITarnListener* listener) {
    if (mHwTarnClient == nullptr || listener == nullptr) return 0;
    return mHwTarnClient->registerListener(listener);
}

int TarnManager::unRegisterListener(ITarnListener* listener) {
    if (mHwTarnClient == nullptr || listener == nullptr) return 0;
    return mHwTarnClient->unRegisterListener(listener);
}

int TarnManager::isTarnReady() {
    return mHwTarnClient != nullptr ? mHwTarnClient->isTarnReady() : -1;
}

int TarnManager::createTarnMsgManager() {
    return mHwTarnClient != nullptr ? mHwTarnClient->createTarnMsgManager() : -1;
}

int TarnManager::removeTarnMsgManager() {
    return mHwTarnClient != nullptr ? mHwTarnClient->removeTarnMsgManager() : -1;
}

}  // namespace android

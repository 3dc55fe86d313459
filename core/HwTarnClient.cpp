#include "core/HwTarnClient.h"

#include <binder/Parcel.h>
#include <tarn/ITarnListener.h>
#include <unistd.h>
#include <utils/String8.h>

#include "core/TarnCallback.h"
#include "core/TarnClientLooper.h"
#include "protocol/Limits.h"

#define TARN_LOG_TAG "Zunt@HwTarnClient"
#include "log/Log.h"

using ::android::hardware::hidl_string;
using ::android::hardware::Return;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace android {

SharedReference<IHwTarn> mHwTarnService;
SharedReference<ITarnClientLooper> mITarnClientLooper;

namespace {

/** The cached proxy, looked up first where there is none; null without a service. */
sp<IHwTarn> obtainHwTarnService() {
    const sp<IHwTarn> service = mHwTarnService;
    return service != nullptr ? service : mHwTarnService.setIfEmpty(getHwTarnService());
}

sp<ITarnClientLooper> obtainLooper() {
    const sp<ITarnClientLooper> looper = mITarnClientLooper;
    return looper != nullptr ? looper : mITarnClientLooper.setIfEmpty(new TarnClientLooper);
}

bool isDead(const Return<void>& status) {
    return !status.isOk() && status.isDeadObject();
}

hidl_string bytesOf(const Parcel& parcel) {
    if (parcel.dataSize() == 0) return hidl_string();
    return hidl_string(reinterpret_cast<const char*>(parcel.data()), parcel.dataSize());
}

}  // namespace

sp<IHwTarn> getHwTarnService() {
    return IHwTarn::getService("default", false);
}

HwTarnClient::HwTarnClient() {
    obtainHwTarnService();
    obtainLooper();
}

HwTarnClient::~HwTarnClient() {
    for (const sp<ITarnClientLooper>& looper : mLoopers) looper->removeTarnMsgLooper(this);
    mHwTarnService.clear();
    mITarnClientLooper.clear();
}

int HwTarnClient::hw_invoke(const Parcel& data, Parcel* reply) {
    const sp<IHwTarn> service = obtainHwTarnService();
    if (service == nullptr) {
        TLOGE("Error, hw_invoke failed, mHwTarnService null .");
        return -1;
    }
    if (data.dataSize() == 0) return 0;

    String8 answer;
    const Return<void> status = service->hwInvoke(
            bytesOf(data),
            [&answer](const hidl_string& bytes) { answer.setTo(bytes.c_str(), bytes.size()); });
    if (isDead(status)) {
        TLOGE("Error, hwInvoke failed, service is a DEAD_OBJECT.");
        return -1;
    }
    // Any other transport error leaves an empty reply and counts as a success.
    reply->setDataSize(answer.size());
    reply->setDataPosition(0);
    reply->write(answer.c_str(), answer.size());
    return 0;
}

int HwTarnClient::postEvent(int what, const Parcel& data) {
    const sp<IHwTarn> service = obtainHwTarnService();
    if (service == nullptr) {
        TLOGE("Error, postEvent failed, mHwTarnService null .");
        return -1;
    }
    if (data.dataSize() > ::tarn::protocol::kMostTransactionBytes) {
        TLOGE("Error, postEvent failed, Parcel data szie to long , biger then BINDER_VM_SIZE .");
        return -1;
    }
    if (isDead(service->hwPostEvent(what, bytesOf(data)))) {
        TLOGE("Error, postEvent failed, service is a DEAD_OBJECT.");
        return -1;
    }
    return 0;
}

int HwTarnClient::isTarnReady() {
    return getHwTarnService() != nullptr ? 0 : -1;
}

int HwTarnClient::createTarnMsgManager() {
    const sp<IHwTarn> service = obtainHwTarnService();
    if (service == nullptr) return -1;

    // The service's reference alone keeps the callback alive.
    if (isDead(service->hwRegisterCallback(new TarnCallback, getpid()))) {
        TLOGE("Error, createTarnMsgManager failed, service is a DEAD_OBJECT.");
        return -1;
    }
    const sp<ITarnClientLooper> looper = obtainLooper();
    if (looper == nullptr) {
        TLOGE("Error, createTarnMsgManager failed, mITarnClientLooper null");
        return -1;
    }
    {
        AutoMutex guard(mLoopersLock);
        mLoopers.insert(looper);
    }
    return looper->createTarnMsgLooper(this);
}

int HwTarnClient::removeTarnMsgManager() {
    const sp<ITarnClientLooper> looper = mITarnClientLooper;
    if (looper != nullptr) looper->removeTarnMsgLooper(this);
    mITarnClientLooper.clear();
    return 0;
}

int HwTarnClient::registerListener(ITarnListener* listener) {
    if (listener != nullptr) {
        AutoMutex guard(mListenerLock);
        mListeners.insert(listener);
    }
    return 0;
}

int HwTarnClient::unRegisterListener(ITarnListener* listener) {
    if (listener != nullptr) {
        AutoMutex guard(mListenerLock);
        mListeners.erase(listener);
    }
    return 0;
}

bool HwTarnClient::handleMsg(unsigned int msgType, void* data, unsigned int size) {
    TLOGD("msgType = %x, size = %d", msgType, static_cast<int>(size));

    std::set<ITarnListener*> listeners;
    {
        AutoMutex guard(mListenerLock);
        listeners = mListeners;
    }
    if (listeners.empty()) return false;

    Parcel parcel;
    if (data != nullptr && size != 0) parcel.write(data, size);
    for (ITarnListener* listener : listeners) {
        parcel.setDataPosition(0);
        listener->notify(msgType, 0, 0, &parcel);
    }
    return false;
}

}  // namespace android

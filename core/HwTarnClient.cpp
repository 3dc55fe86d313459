#include "core/HwTarnClient.h"

#include <binder/Parcel.h>
#include <tarn/ITarnListener.h>
#include <unistd.h>

#include <cstring>
#include <memory>

#include "core/ServiceInUse.h"
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

// A reply's bytes until the call's outcome is known; short ones cost no allocation.
class Answer {
  public:
    void take(const hidl_string& bytes) {
        if (bytes.size() > sizeof(mShort)) {
            mLong.reset(new char[bytes.size()]);
        } else {
            mLong.reset();
        }
        mSize = bytes.size();
        if (mSize != 0) memcpy(mLong != nullptr ? mLong.get() : mShort, bytes.c_str(), mSize);
    }
    const char* data() const { return mLong != nullptr ? mLong.get() : mShort; }
    size_t size() const { return mSize; }

  private:
    char mShort[128];
    std::unique_ptr<char[]> mLong;
    size_t mSize = 0;
};

}  // namespace

sp<IHwTarn> getHwTarnService() {
    return IHwTarn::getService("default", false);
}

sp<IHwTarn> obtainHwTarnService(uint32_t* edition) {
    const sp<IHwTarn> service = mHwTarnService.read(edition);
    return service != nullptr ? service : mHwTarnService.setIfEmpty(getHwTarnService(), edition);
}

HwTarnClient::HwTarnClient() {
    obtainHwTarnService();
    obtainLooper();
}

HwTarnClient::~HwTarnClient() {
    for (const sp<ITarnClientLooper>& looper : mLoopers) looper->removeTarnMsgLooper(this);
    mHwTarnService.clear();
    ServiceInUse::forget();
    mITarnClientLooper.clear();
}

int HwTarnClient::hw_invoke(const Parcel& data, Parcel* reply) {
    const ServiceInUse service;
    if (service.get() == nullptr) {
        TLOGE("Error, hw_invoke failed, mHwTarnService null .");
        return -1;
    }
    if (data.dataSize() == 0) return 0;

    Answer answer;
    const Return<void> status = service.get()->hwInvoke(
            bytesOf(data), [&answer](const hidl_string& bytes) { answer.take(bytes); });
    if (isDead(status)) {
        TLOGE("Error, hwInvoke failed, service is a DEAD_OBJECT.");
        return -1;
    }
    // Any other transport error leaves an empty reply and counts as a success.
    reply->setDataSize(answer.size());
    reply->setDataPosition(0);
    reply->write(answer.data(), answer.size());
    return 0;
}

int HwTarnClient::postEvent(int what, const Parcel& data) {
    const ServiceInUse service;
    if (service.get() == nullptr) {
        TLOGE("Error, postEvent failed, mHwTarnService null .");
        return -1;
    }
    if (data.dataSize() > ::tarn::protocol::kMostTransactionBytes) {
        TLOGE("Error, postEvent failed, Parcel data szie to long , biger then BINDER_VM_SIZE .");
        return -1;
    }
    if (isDead(service.get()->hwPostEvent(what, bytesOf(data)))) {
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

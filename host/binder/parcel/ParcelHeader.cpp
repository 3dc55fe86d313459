#define LOG_TAG "Parcel"

// What a request or a reply begins with: the interface token, the exception word.

#include <binder/IPCThreadState.h>
#include <binder/Parcel.h>
#include <binder/Status.h>
#include <log/log.h>

#include <cstring>

#include "LogLimit.h"
#include "ParcelLayout.h"

namespace android {

status_t Parcel::writeInterfaceToken(const String16& interface) {
    const IPCThreadState* thread = IPCThreadState::self();
    writeInt32(thread->getStrictModePolicy() | parcel::kStrictModePenaltyGather);
    updateWorkSourceRequestHeaderPosition();
    writeInt32(thread->shouldPropagateWorkSource()
                       ? static_cast<int32_t>(thread->getCallingWorkSourceUid())
                       : IPCThreadState::kUnsetWorkSource);
    writeInt32(parcel::kTokenMark);
    return writeString16(interface);
}

bool Parcel::checkInterface(IBinder* binder) const {
    return enforceInterface(binder->getInterfaceDescriptor());
}

bool Parcel::enforceInterface(const String16& interface, IPCThreadState* threadState) const {
    const int32_t strictModePolicy = readInt32();
    if (threadState == nullptr) threadState = IPCThreadState::self();
    // Nobody waits for a one-way call, so the caller's policy ends there.
    const bool oneWay = (threadState->getLastTransactionBinderFlags() & IBinder::FLAG_ONEWAY) != 0;
    threadState->setStrictModePolicy(oneWay ? 0 : strictModePolicy);

    updateWorkSourceRequestHeaderPosition();
    threadState->setCallingWorkSourceUidWithoutPropagation(static_cast<uid_t>(readInt32()));

    const int32_t mark = readInt32();
    if (mark != parcel::kTokenMark) {
        if (parcel::mayLog()) {
            ALOGE("Expecting header 0x%x but found 0x%x", parcel::kTokenMark, mark);
        }
        return false;
    }
    size_t length;
    const char16_t* name = readString16Inplace(&length);
    if (length == interface.size() &&
        (length == 0 || memcmp(name, interface.string(), length * sizeof(char16_t)) == 0)) {
        return true;
    }
    if (parcel::mayLog()) {
        ALOGW("enforceInterface() expected '%s' but read '%s'", String8(interface).string(),
              length > 0 ? String8(name, length).string() : "");
    }
    return false;
}

// Only the first token of a parcel counts.
void Parcel::updateWorkSourceRequestHeaderPosition() const {
    if (mRequestHeaderPresent) return;
    mWorkSourceRequestHeaderPosition = dataPosition();
    mRequestHeaderPresent = true;
}

bool Parcel::replaceCallingWorkSourceUid(uid_t uid) {
    if (!mRequestHeaderPresent) return false;
    const size_t position = dataPosition();
    setDataPosition(mWorkSourceRequestHeaderPosition);
    const status_t status = writeInt32(static_cast<int32_t>(uid));
    setDataPosition(position);
    return status == NO_ERROR;
}

uid_t Parcel::readCallingWorkSourceUid() const {
    if (!mRequestHeaderPresent) return static_cast<uid_t>(IPCThreadState::kUnsetWorkSource);
    const size_t position = dataPosition();
    setDataPosition(mWorkSourceRequestHeaderPosition);
    const uid_t uid = static_cast<uid_t>(readInt32());
    setDataPosition(position);
    return uid;
}

status_t Parcel::writeNoException() {
    return binder::Status().writeToParcel(this);
}

int32_t Parcel::readExceptionCode() const {
    binder::Status status;
    status.readFromParcel(*this);
    return status.exceptionCode();
}

}  // namespace android

#include <binder/Status.h>

namespace android::binder {

namespace {

// Reads the first word of a block, which is the size of all of it, that word included.
status_t readBlockSize(const Parcel& parcel, size_t* outSize) {
    const size_t left = parcel.dataAvail();
    int32_t size;
    const status_t status = parcel.readInt32(&size);
    if (status != OK) return status;
    // As an unsigned number a negative size is beyond them all.
    if (static_cast<size_t>(size) > left) return UNKNOWN_ERROR;
    *outSize = static_cast<size_t>(size);
    return OK;
}

status_t skipSizedBlock(const Parcel& parcel) {
    const size_t start = parcel.dataPosition();
    size_t size;
    const status_t status = readBlockSize(parcel, &size);
    if (status == OK) parcel.setDataPosition(start + size);
    return status;
}

// The sender's stack trace, of which an empty one is its size word alone.
status_t skipStackTrace(const Parcel& parcel) {
    const size_t start = parcel.dataPosition();
    size_t size;
    const status_t status = readBlockSize(parcel, &size);
    if (status == OK && size != 0) parcel.setDataPosition(start + size);
    return status;
}

}  // namespace

std::string Status::exceptionToString(int32_t exceptionCode) {
    switch (exceptionCode) {
        case EX_NONE:
            return "EX_NONE";
        case EX_SECURITY:
            return "EX_SECURITY";
        case EX_BAD_PARCELABLE:
            return "EX_BAD_PARCELABLE";
        case EX_ILLEGAL_ARGUMENT:
            return "EX_ILLEGAL_ARGUMENT";
        case EX_NULL_POINTER:
            return "EX_NULL_POINTER";
        case EX_ILLEGAL_STATE:
            return "EX_ILLEGAL_STATE";
        case EX_NETWORK_MAIN_THREAD:
            return "EX_NETWORK_MAIN_THREAD";
        case EX_UNSUPPORTED_OPERATION:
            return "EX_UNSUPPORTED_OPERATION";
        case EX_SERVICE_SPECIFIC:
            return "EX_SERVICE_SPECIFIC";
        case EX_PARCELABLE:
            return "EX_PARCELABLE";
        case EX_HAS_REPLY_HEADER:
            return "EX_HAS_REPLY_HEADER";
        case EX_TRANSACTION_FAILED:
            return "EX_TRANSACTION_FAILED";
        default:
            return std::to_string(exceptionCode);
    }
}

Status Status::ok() {
    return Status();
}

Status Status::fromExceptionCode(int32_t exceptionCode) {
    return Status(exceptionCode, OK);
}

Status Status::fromExceptionCode(int32_t exceptionCode, const String8& message) {
    return Status(exceptionCode, OK, message);
}

Status Status::fromExceptionCode(int32_t exceptionCode, const char* message) {
    return fromExceptionCode(exceptionCode, String8(message));
}

Status Status::fromServiceSpecificError(int32_t serviceSpecificErrorCode) {
    return Status(EX_SERVICE_SPECIFIC, serviceSpecificErrorCode);
}

Status Status::fromServiceSpecificError(int32_t serviceSpecificErrorCode, const String8& message) {
    return Status(EX_SERVICE_SPECIFIC, serviceSpecificErrorCode, message);
}

Status Status::fromServiceSpecificError(int32_t serviceSpecificErrorCode, const char* message) {
    return fromServiceSpecificError(serviceSpecificErrorCode, String8(message));
}

Status Status::fromStatusT(status_t status) {
    Status result;
    result.setFromStatusT(status);
    return result;
}

Status::Status(int32_t exceptionCode, int32_t errorCode)
    : mException(exceptionCode), mErrorCode(errorCode) {}

Status::Status(int32_t exceptionCode, int32_t errorCode, const String8& message)
    : mException(exceptionCode), mErrorCode(errorCode), mMessage(message) {}

status_t Status::readFromParcel(const Parcel& parcel) {
    status_t status = parcel.readInt32(&mException);
    // A reply header comes with results only, never with an exception.
    if (status == OK && mException == EX_HAS_REPLY_HEADER) {
        status = skipSizedBlock(parcel);
        mException = EX_NONE;
    }
    if (status == OK && mException != EX_NONE) {
        String16 message;
        status = parcel.readString16(&message);
        if (status == OK) {
            mMessage = String8(message);
            status = skipStackTrace(parcel);
        }
        if (status == OK && mException == EX_SERVICE_SPECIFIC) {
            status = parcel.readInt32(&mErrorCode);
        } else if (status == OK && mException == EX_PARCELABLE) {
            status = skipSizedBlock(parcel);
        }
    }
    if (status != OK) setFromStatusT(status);
    return status;
}

status_t Status::writeToParcel(Parcel* parcel) const {
    // The transaction itself reports this one.
    if (mException == EX_TRANSACTION_FAILED) return mErrorCode;
    status_t status = parcel->writeInt32(mException);
    if (status != OK || mException == EX_NONE) return status;
    status = parcel->writeString16(String16(mMessage));
    if (status == OK) status = parcel->writeInt32(0);
    if (status == OK && mException == EX_SERVICE_SPECIFIC) status = parcel->writeInt32(mErrorCode);
    if (status == OK && mException == EX_PARCELABLE) status = parcel->writeInt32(0);
    return status;
}

void Status::setException(int32_t ex, const String8& message) {
    mException = ex;
    mErrorCode = ex == EX_TRANSACTION_FAILED ? FAILED_TRANSACTION : NO_ERROR;
    mMessage = message;
}

void Status::setServiceSpecificError(int32_t errorCode, const String8& message) {
    setException(EX_SERVICE_SPECIFIC, message);
    mErrorCode = errorCode;
}

void Status::setFromStatusT(status_t status) {
    mException = status == NO_ERROR ? EX_NONE : EX_TRANSACTION_FAILED;
    mErrorCode = status;
    mMessage.clear();
}

String8 Status::toString8() const {
    if (mException == EX_NONE) return String8("No error");
    String8 text =
            String8::format("Status(%d, %s): '", mException, exceptionToString(mException).c_str());
    if (mException == EX_SERVICE_SPECIFIC || mException == EX_TRANSACTION_FAILED) {
        text.appendFormat("%d: ", mErrorCode);
    }
    text.append(mMessage);
    text.append("'");
    return text;
}

std::stringstream& operator<<(std::stringstream& stream, const Status& s) {
    stream << s.toString8().string();
    return stream;
}

}  // namespace android::binder

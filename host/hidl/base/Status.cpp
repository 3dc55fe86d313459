#define LOG_TAG "HidlStatus"

#include <hidl/Status.h>
#include <log/log.h>

#include <atomic>

namespace android::hardware {
namespace {

std::atomic<HidlReturnRestriction> gRestriction{HidlReturnRestriction::NONE};

const char* exceptionName(int32_t exceptionCode) {
    switch (exceptionCode) {
        case Status::EX_NONE:
            return "EX_NONE";
        case Status::EX_SECURITY:
            return "EX_SECURITY";
        case Status::EX_BAD_PARCELABLE:
            return "EX_BAD_PARCELABLE";
        case Status::EX_ILLEGAL_ARGUMENT:
            return "EX_ILLEGAL_ARGUMENT";
        case Status::EX_NULL_POINTER:
            return "EX_NULL_POINTER";
        case Status::EX_ILLEGAL_STATE:
            return "EX_ILLEGAL_STATE";
        case Status::EX_NETWORK_MAIN_THREAD:
            return "EX_NETWORK_MAIN_THREAD";
        case Status::EX_UNSUPPORTED_OPERATION:
            return "EX_UNSUPPORTED_OPERATION";
        case Status::EX_HAS_REPLY_HEADER:
            return "EX_HAS_REPLY_HEADER";
        case Status::EX_TRANSACTION_FAILED:
            return "EX_TRANSACTION_FAILED";
        default:
            return "unknown exception";
    }
}

// Debian's libutils comes without the platform's statusToString().
std::string errorName(status_t error) {
    switch (error) {
        case NO_MEMORY:
            return "NO_MEMORY";
        case INVALID_OPERATION:
            return "INVALID_OPERATION";
        case BAD_VALUE:
            return "BAD_VALUE";
        case BAD_TYPE:
            return "BAD_TYPE";
        case NAME_NOT_FOUND:
            return "NAME_NOT_FOUND";
        case PERMISSION_DENIED:
            return "PERMISSION_DENIED";
        case NO_INIT:
            return "NO_INIT";
        case ALREADY_EXISTS:
            return "ALREADY_EXISTS";
        case DEAD_OBJECT:
            return "DEAD_OBJECT";
        case FAILED_TRANSACTION:
            return "FAILED_TRANSACTION";
        case BAD_INDEX:
            return "BAD_INDEX";
        case NOT_ENOUGH_DATA:
            return "NOT_ENOUGH_DATA";
        case WOULD_BLOCK:
            return "WOULD_BLOCK";
        case TIMED_OUT:
            return "TIMED_OUT";
        case UNKNOWN_TRANSACTION:
            return "UNKNOWN_TRANSACTION";
        case FDS_NOT_ALLOWED:
            return "FDS_NOT_ALLOWED";
        case UNEXPECTED_NULL:
            return "UNEXPECTED_NULL";
        case UNKNOWN_ERROR:
            return "UNKNOWN_ERROR";
        default:
            return std::to_string(error);
    }
}

}  // namespace

Status Status::ok() {
    return Status();
}

Status Status::fromExceptionCode(int32_t exceptionCode) {
    return fromExceptionCode(exceptionCode, "");
}

Status Status::fromExceptionCode(int32_t exceptionCode, const char* message) {
    Status status;
    status.setException(exceptionCode, message);
    return status;
}

Status Status::fromStatusT(status_t error) {
    Status status;
    status.setFromStatusT(error);
    return status;
}

void Status::setException(int32_t exceptionCode, const char* message) {
    mException = exceptionCode;
    mErrorCode = exceptionCode == EX_TRANSACTION_FAILED ? FAILED_TRANSACTION : OK;
    mMessage = message != nullptr ? message : "";
}

void Status::setFromStatusT(status_t status) {
    mException = status == OK ? EX_NONE : EX_TRANSACTION_FAILED;
    mErrorCode = status;
    mMessage.clear();
}

std::string Status::description() const {
    if (isOk()) return "No error";
    std::string text = "Status(" + std::string(exceptionName(mException)) + "): '";
    if (mException == EX_TRANSACTION_FAILED) text += errorName(mErrorCode) + ": ";
    return text + mMessage + "'";
}

std::ostream& operator<<(std::ostream& os, const Status& status) {
    return os << status.description();
}

void setProcessHidlReturnRestriction(HidlReturnRestriction restriction) {
    gRestriction = restriction;
}

namespace details {

return_status::return_status(return_status&& other) noexcept {
    *this = std::move(other);
}

return_status& return_status::operator=(return_status&& other) noexcept {
    std::swap(mStatus, other.mStatus);
    std::swap(mCheckedStatus, other.mCheckedStatus);
    return *this;
}

return_status::~return_status() {
    if (mCheckedStatus || mStatus.isOk()) return;
    switch (gRestriction.load()) {
        case HidlReturnRestriction::NONE:
            return;
        case HidlReturnRestriction::ERROR_IF_UNCHECKED:
            ALOGE("A failed HIDL call was not checked: %s", description().c_str());
            return;
        case HidlReturnRestriction::FATAL_IF_UNCHECKED:
            LOG_ALWAYS_FATAL("A failed HIDL call was not checked: %s", description().c_str());
    }
}

void return_status::assertOk() const {
    if (!isOk()) LOG_ALWAYS_FATAL("The value of a failed HIDL call: %s", description().c_str());
}

}  // namespace details
}  // namespace android::hardware

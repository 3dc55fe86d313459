#pragma once

#include <hidl/HidlSupport.h>
#include <utils/Errors.h>
#include <utils/StrongPointer.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>

namespace android::hardware {

/** The outcome of a call: nothing, an exception of the other side, or a transport error. */
class Status final {
  public:
    enum Exception {
        EX_NONE = 0,
        EX_SECURITY = -1,
        EX_BAD_PARCELABLE = -2,
        EX_ILLEGAL_ARGUMENT = -3,
        EX_NULL_POINTER = -4,
        EX_ILLEGAL_STATE = -5,
        EX_NETWORK_MAIN_THREAD = -6,
        EX_UNSUPPORTED_OPERATION = -7,
        EX_HAS_REPLY_HEADER = -128,
        EX_TRANSACTION_FAILED = -129,
    };

    /** Same as Status(). */
    static Status ok();
    static Status fromExceptionCode(int32_t exceptionCode);
    static Status fromExceptionCode(int32_t exceptionCode, const char* message);
    /** OK gives ok(); anything else a failed transaction. */
    static Status fromStatusT(status_t status);

    Status() = default;

    void setException(int32_t exceptionCode, const char* message);
    void setFromStatusT(status_t status);

    bool isOk() const { return mException == EX_NONE; }
    int32_t exceptionCode() const { return mException; }
    const char* exceptionMessage() const { return mMessage.c_str(); }
    /** The transport error, OK unless exceptionCode() is EX_TRANSACTION_FAILED. */
    status_t transactionError() const {
        return mException == EX_TRANSACTION_FAILED ? mErrorCode : OK;
    }
    /** For messages to people. */
    std::string description() const;

  private:
    int32_t mException = EX_NONE;
    status_t mErrorCode = OK;
    std::string mMessage;
};

std::ostream& operator<<(std::ostream& os, const Status& status);

/** What happens to a Return that failed and that nobody looked at. */
enum class HidlReturnRestriction {
    NONE,
    ERROR_IF_UNCHECKED,
    FATAL_IF_UNCHECKED,
};

/** For the whole process; the default is NONE. */
void setProcessHidlReturnRestriction(HidlReturnRestriction restriction);

namespace details {

/** The status half of every Return. */
class return_status {
  public:
    return_status() = default;
    return_status(const Status& status) : mStatus(status) {}  // NOLINT
    return_status(return_status&& other) noexcept;
    return_status& operator=(return_status&& other) noexcept;
    return_status(const return_status&) = delete;
    return_status& operator=(const return_status&) = delete;
    ~return_status();

    bool isOk() const {
        mCheckedStatus = true;
        return mStatus.isOk();
    }
    bool isDeadObject() const {
        mCheckedStatus = true;
        return mStatus.transactionError() == DEAD_OBJECT;
    }
    /** For messages to people; does not count as a check. */
    std::string description() const { return mStatus.description(); }
    /** Aborts if the call failed. */
    void assertOk() const;

  private:
    friend const Status& statusOf(const return_status& result);

    Status mStatus;
    mutable bool mCheckedStatus = false;
};

/** The status inside, to be passed on; counts as a check. */
inline const Status& statusOf(const return_status& result) {
    result.mCheckedStatus = true;
    return result.mStatus;
}

}  // namespace details

/** The outcome of a call and, if it went well, its value. Reading the value otherwise aborts. */
template <typename T>
class Return : public details::return_status {
  public:
    Return(T value) : mValue(std::move(value)) {}            // NOLINT
    Return(const Status& status) : return_status(status) {}  // NOLINT
    Return(Return&&) noexcept = default;
    Return& operator=(Return&&) noexcept = default;

    operator T() const {  // NOLINT
        assertOk();
        return mValue;
    }
    T withDefault(T fallback) const { return isOk() ? mValue : fallback; }

  private:
    T mValue{};
};

template <typename T>
class Return<sp<T>> : public details::return_status {
  public:
    Return(sp<T> value) : mValue(std::move(value)) {}        // NOLINT
    Return(T* value) : mValue(value) {}                      // NOLINT
    Return(std::nullptr_t) {}                                // NOLINT
    Return(const Status& status) : return_status(status) {}  // NOLINT
    template <typename U>
    Return(const sp<U>& value) : mValue(value) {}  // NOLINT
    Return(Return&&) noexcept = default;
    Return& operator=(Return&&) noexcept = default;

    operator sp<T>() const {  // NOLINT
        assertOk();
        return mValue;
    }
    sp<T> withDefault(sp<T> fallback) const { return isOk() ? mValue : fallback; }

  private:
    sp<T> mValue;
};

template <>
class Return<void> : public details::return_status {
  public:
    Return() = default;
    Return(const Status& status) : return_status(status) {}  // NOLINT
    Return(Return&&) noexcept = default;
    Return& operator=(Return&&) noexcept = default;
};

/** The success of a call without a value. */
inline Return<void> Void() {
    return Return<void>();
}

}  // namespace android::hardware

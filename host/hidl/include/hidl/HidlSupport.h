#pragma once

#include <cutils/native_handle.h>
#include <utils/Errors.h>
#include <utils/RefBase.h>
#include <utils/StrongPointer.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace android {

namespace hidl::base::V1_0 {
struct IBase;
}  // namespace hidl::base::V1_0

namespace hardware {

namespace details {
/** Logs what is wrong with the calling program and aborts, as the platform does. */
[[noreturn]] void hidlFatal(const char* what);
/** size as hidl_string and hidl_vec keep it; aborts if it does not fit. */
uint32_t checkedSize(size_t size);
}  // namespace details

/** Told when the process of an object that it was linked to is gone. */
struct hidl_death_recipient : public virtual RefBase {
    virtual void serviceDied(uint64_t cookie,
                             const wp<::android::hidl::base::V1_0::IBase>& who) = 0;
};

/** Length and bytes; binary-safe, always followed by a NUL that does not count. */
struct hidl_string {
    hidl_string();
    hidl_string(const hidl_string& other);
    hidl_string(hidl_string&& other) noexcept;
    hidl_string(const char* text);  // NOLINT(google-explicit-constructor)
    hidl_string(const char* data, size_t size);
    hidl_string(const std::string& text);  // NOLINT(google-explicit-constructor)
    template <typename InputIterator,
              typename = typename std::enable_if<std::is_convertible<
                      typename std::iterator_traits<InputIterator>::iterator_category,
                      std::input_iterator_tag>::value>::type>
    hidl_string(InputIterator first, InputIterator last) : hidl_string(std::string(first, last)) {}
    ~hidl_string();

    hidl_string& operator=(const hidl_string& other);
    hidl_string& operator=(hidl_string&& other) noexcept;
    hidl_string& operator=(const char* text);
    hidl_string& operator=(const std::string& text);

    operator std::string() const { return std::string(mBuffer, mSize); }  // NOLINT

    const char* c_str() const { return mBuffer; }
    size_t size() const { return mSize; }
    bool empty() const { return mSize == 0; }
    void clear();

    /**
     * Refers to the caller's bytes without copying them; they must outlive this string and its
     * moves. data[size] must be NUL, else the process is aborted.
     */
    void setToExternal(const char* data, size_t size);

  private:
    void copyFrom(const char* data, size_t size);
    void moveFrom(hidl_string* other);

    const char* mBuffer;
    uint32_t mSize;
    bool mOwnsBuffer;
};

inline int compare(const hidl_string& left, const hidl_string& right) {
    const size_t common = left.size() < right.size() ? left.size() : right.size();
    const int order = memcmp(left.c_str(), right.c_str(), common);
    if (order != 0) return order;
    if (left.size() == right.size()) return 0;
    return left.size() < right.size() ? -1 : 1;
}
inline bool operator==(const hidl_string& left, const hidl_string& right) {
    return left.size() == right.size() && compare(left, right) == 0;
}
inline bool operator!=(const hidl_string& left, const hidl_string& right) {
    return !(left == right);
}
inline bool operator<(const hidl_string& left, const hidl_string& right) {
    return compare(left, right) < 0;
}
inline bool operator>(const hidl_string& left, const hidl_string& right) {
    return right < left;
}
inline bool operator<=(const hidl_string& left, const hidl_string& right) {
    return !(right < left);
}
inline bool operator>=(const hidl_string& left, const hidl_string& right) {
    return !(left < right);
}
std::ostream& operator<<(std::ostream& os, const hidl_string& text);

/** An array of known size, its own or borrowed. */
template <typename T>
struct hidl_vec {
    using value_type = T;
    using iterator = T*;
    using const_iterator = const T*;

    hidl_vec() = default;
    explicit hidl_vec(size_t size) { resize(size); }
    hidl_vec(const hidl_vec<T>& other) { assign(other.begin(), other.end(), other.size()); }
    hidl_vec(hidl_vec<T>&& other) noexcept { moveFrom(&other); }
    hidl_vec(const std::initializer_list<T> list) { assign(list.begin(), list.end(), list.size()); }
    hidl_vec(const std::vector<T>& other) {  // NOLINT(google-explicit-constructor)
        assign(other.begin(), other.end(), other.size());
    }
    template <typename InputIterator,
              typename = typename std::enable_if<std::is_convertible<
                      typename std::iterator_traits<InputIterator>::iterator_category,
                      std::input_iterator_tag>::value>::type>
    hidl_vec(InputIterator first, InputIterator last) {
        assign(first, last, static_cast<size_t>(std::distance(first, last)));
    }
    ~hidl_vec() { release(); }

    hidl_vec& operator=(const hidl_vec& other) {
        if (this != &other) *this = hidl_vec(other);
        return *this;
    }
    hidl_vec& operator=(hidl_vec&& other) noexcept {
        if (this != &other) {
            release();
            moveFrom(&other);
        }
        return *this;
    }
    hidl_vec& operator=(const std::vector<T>& other) { return *this = hidl_vec(other); }
    hidl_vec& operator=(const std::initializer_list<T> list) { return *this = hidl_vec(list); }

    operator std::vector<T>() const { return std::vector<T>(begin(), end()); }  // NOLINT

    /**
     * Refers to the caller's elements without copying them. They must outlive this array and its
     * moves, unless shouldOwn hands over what new[] returned.
     */
    void setToExternal(T* data, size_t size, bool shouldOwn = false) {
        const uint32_t checked = details::checkedSize(size);
        release();
        mBuffer = data;
        mSize = checked;
        mOwnsBuffer = shouldOwn;
    }

    /** Hands the elements to the caller, who deletes them if this array owned them. */
    T* releaseData() {
        T* data = mBuffer;
        mBuffer = nullptr;
        mSize = 0;
        mOwnsBuffer = false;
        return data;
    }

    T* data() { return mBuffer; }
    const T* data() const { return mBuffer; }
    size_t size() const { return mSize; }

    /** Keeps the elements that fit; new ones are value-initialised. */
    void resize(size_t size) {
        hidl_vec<T> resized;
        resized.mSize = details::checkedSize(size);
        resized.mBuffer = new T[size]();
        resized.mOwnsBuffer = true;
        std::move(begin(), begin() + (size < mSize ? size : mSize), resized.begin());
        *this = std::move(resized);
    }

    T& operator[](size_t index) { return mBuffer[index]; }
    const T& operator[](size_t index) const { return mBuffer[index]; }

    iterator begin() { return mBuffer; }
    iterator end() { return mBuffer + mSize; }
    const_iterator begin() const { return mBuffer; }
    const_iterator end() const { return mBuffer + mSize; }

    iterator find(const T& value) { return std::find(begin(), end(), value); }
    const_iterator find(const T& value) const { return std::find(begin(), end(), value); }
    bool contains(const T& value) const { return find(value) != end(); }

    bool operator==(const hidl_vec<T>& other) const {
        return std::equal(begin(), end(), other.begin(), other.end());
    }
    bool operator!=(const hidl_vec<T>& other) const { return !(*this == other); }

  private:
    template <typename InputIterator>
    void assign(InputIterator first, InputIterator last, size_t size) {
        mSize = details::checkedSize(size);
        mBuffer = new T[size]();
        mOwnsBuffer = true;
        std::copy(first, last, mBuffer);
    }

    void moveFrom(hidl_vec<T>* other) {
        mSize = other->mSize;
        mOwnsBuffer = other->mOwnsBuffer;
        mBuffer = other->releaseData();
    }

    void release() {
        if (mOwnsBuffer) delete[] mBuffer;
        releaseData();
    }

    T* mBuffer = nullptr;
    uint32_t mSize = 0;
    bool mOwnsBuffer = false;
};

}  // namespace hardware
}  // namespace android

#include <hidl/HidlSupport.h>
#include <log/log.h>

namespace android::hardware {
namespace details {

void hidlFatal(const char* what) {
    LOG_ALWAYS_FATAL("%s", what);
}

uint32_t checkedSize(size_t size) {
    if (size > UINT32_MAX) hidlFatal("a HIDL string or vec cannot be that long");
    return static_cast<uint32_t>(size);
}

}  // namespace details

namespace {
constexpr char kEmpty[] = "";
}  // namespace

hidl_string::hidl_string() : mBuffer(kEmpty), mSize(0), mOwnsBuffer(false) {}

hidl_string::hidl_string(const hidl_string& other) : hidl_string(other.c_str(), other.size()) {}

hidl_string::hidl_string(hidl_string&& other) noexcept : hidl_string() {
    moveFrom(&other);
}

hidl_string::hidl_string(const char* text)
    : hidl_string(text, text != nullptr ? strlen(text) : 0) {}

hidl_string::hidl_string(const char* data, size_t size) : hidl_string() {
    copyFrom(data, size);
}

hidl_string::hidl_string(const std::string& text) : hidl_string(text.data(), text.size()) {}

hidl_string::~hidl_string() {
    clear();
}

hidl_string& hidl_string::operator=(const hidl_string& other) {
    return *this = hidl_string(other);
}

hidl_string& hidl_string::operator=(hidl_string&& other) noexcept {
    if (this != &other) {
        clear();
        moveFrom(&other);
    }
    return *this;
}

hidl_string& hidl_string::operator=(const char* text) {
    return *this = hidl_string(text);
}

hidl_string& hidl_string::operator=(const std::string& text) {
    return *this = hidl_string(text);
}

void hidl_string::clear() {
    if (mOwnsBuffer) delete[] mBuffer;
    mBuffer = kEmpty;
    mSize = 0;
    mOwnsBuffer = false;
}

void hidl_string::setToExternal(const char* data, size_t size) {
    const uint32_t checked = details::checkedSize(size);
    if (data == nullptr || data[size] != '\0') {
        details::hidlFatal("hidl_string::setToExternal needs bytes that end with a NUL");
    }
    clear();
    mBuffer = data;
    mSize = checked;
}

void hidl_string::copyFrom(const char* data, size_t size) {
    if (size == 0) return;
    mSize = details::checkedSize(size);
    char* copy = new char[size + 1];
    memcpy(copy, data, size);
    copy[size] = '\0';
    mBuffer = copy;
    mOwnsBuffer = true;
}

void hidl_string::moveFrom(hidl_string* other) {
    std::swap(mBuffer, other->mBuffer);
    std::swap(mSize, other->mSize);
    std::swap(mOwnsBuffer, other->mOwnsBuffer);
}

std::ostream& operator<<(std::ostream& os, const hidl_string& text) {
    return os.write(text.c_str(), static_cast<std::streamsize>(text.size()));
}

}  // namespace android::hardware

#include <gtest/gtest.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <vector>

#include "host/binder/dbus/MessageFormat.h"

namespace {

// What the calls below do: all of their work, a part of it every other time after an interruption,
// or none.
enum class Mood { STEADY, INTERRUPTED, FAILING };
Mood gMood = Mood::STEADY;
int gCalls = 0;

/** How much of it is done; or -1. */
ssize_t allowed(size_t size) {
    if (gMood == Mood::STEADY) return static_cast<ssize_t>(size);
    errno = gMood == Mood::FAILING ? EIO : EINTR;
    if (gMood == Mood::FAILING || gCalls++ % 2 == 0) return -1;
    return static_cast<ssize_t>(std::min<size_t>(size, 1000));
}

}  // namespace

// In place of the C library's.

extern "C" ssize_t write(int fd, const void* buf, size_t size) {
    const ssize_t part = allowed(size);
    const struct iovec bytes = {const_cast<void*>(buf), static_cast<size_t>(part)};
    return part < 0 ? part : writev(fd, &bytes, 1);
}

extern "C" ssize_t pread(int fd, void* buf, size_t size, off_t offset) {
    const ssize_t part = allowed(size);
    const struct iovec bytes = {buf, static_cast<size_t>(part)};
    return part < 0 ? part : preadv(fd, &bytes, 1, offset);
}

namespace android::host::dbus {
namespace {

/** Gives the one kind of message that the library makes without a bus, that of its variants. */
template <sdbus::PlainMessage sdbus::Variant::*kMember>
struct Opener {
    friend sdbus::PlainMessage messageOf(const sdbus::Variant& variant) { return variant.*kMember; }
};
sdbus::PlainMessage messageOf(const sdbus::Variant& variant);
template struct Opener<&sdbus::Variant::msg_>;

class MessageFormat : public testing::Test {
  protected:
    MessageFormat() {
        for (size_t i = 0; i < 5000; i++) mContent.bytes.push_back(static_cast<uint8_t>(i * 7));
    }
    ~MessageFormat() override { gMood = Mood::STEADY; }

    sdbus::PlainMessage written() const {
        sdbus::PlainMessage message = messageOf(sdbus::Variant());
        write(message, mContent);
        message.seal();
        message.rewind(true);
        return message;
    }

    Content mContent;
};

TEST_F(MessageFormat, GoesOnWithAMemoryFileAfterAnInterruption) {
    gMood = Mood::INTERRUPTED;
    sdbus::PlainMessage message = written();
    EXPECT_EQ(10, gCalls);
    Content back;
    EXPECT_EQ(Reading::COMPLETE, read(message, &back));
    EXPECT_EQ(20, gCalls);
    EXPECT_EQ(mContent.bytes, back.bytes);
}

TEST_F(MessageFormat, GivesAMemoryFileUpThatCannotBeWrittenOrRead) {
    sdbus::PlainMessage message = written();
    gMood = Mood::FAILING;
    EXPECT_THROW(written(), sdbus::Error);
    Content back;
    EXPECT_EQ(Reading::MALFORMED, read(message, &back));
}

}  // namespace
}  // namespace android::host::dbus

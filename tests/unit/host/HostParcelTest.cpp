#include <binder/Binder.h>
#include <binder/IPCThreadState.h>
#include <binder/Parcel.h>
#include <binder/Status.h>
#include <binder/TextOutput.h>
#include <gtest/gtest.h>
#include <utils/String8.h>

#include <cstring>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tests/unit/host/ParcelHex.h"

namespace android {
namespace {

class StringOutput : public TextOutput {
  public:
    status_t print(const char* txt, size_t len) override {
        text.append(txt, len);
        return NO_ERROR;
    }
    void moveIndent(int) override {}
    void pushBundle() override {}
    void popBundle() override {}

    std::string text;
};

std::string printed(const std::function<void()>& print) {
    ::testing::internal::CaptureStdout();
    print();
    return ::testing::internal::GetCapturedStdout();
}

TEST(HostTextOutput, KeepsABundleTogether) {
    EXPECT_EQ("", printed([] {
                  aout.pushBundle();
                  aout.print("a", 1);
                  aout.pushBundle();
                  aout.popBundle();
              }));
    EXPECT_EQ("a", printed([] { aout.popBundle(); }));
}

TEST(HostTextOutput, IndentsWholeLines) {
    EXPECT_EQ("  x\n  y\nz\n", printed([] {
                  aout.moveIndent(1);
                  aout.print("x\ny\n", 4);
                  aout.moveIndent(-2);
                  aout.print("z\n", 2);
              }));
}

TEST(HostParcel, RefusesAbsurdSizesAndStaysAsItWas) {
    const size_t absurd = static_cast<size_t>(INT32_MAX) + 1;
    Parcel parcel;
    parcel.writeInt32(5);
    EXPECT_EQ(BAD_VALUE, parcel.setDataSize(absurd));
    EXPECT_EQ(BAD_VALUE, parcel.setDataCapacity(absurd));
    EXPECT_EQ(BAD_VALUE, parcel.write(parcel.data(), absurd));
    EXPECT_EQ(BAD_VALUE, parcel.writeString16(u"", absurd));
    EXPECT_EQ(nullptr, parcel.writeInplace(absurd));
    EXPECT_EQ(nullptr, parcel.writeInplace(INT32_MAX - 1));
    EXPECT_EQ("05000000", hexOf(parcel));
    EXPECT_EQ(4u, parcel.dataPosition());
}

TEST(HostParcel, TakesAPartOfItsOwnBytesAsItsData) {
    for (const size_t capacity : {size_t{12}, size_t{1000}}) {
        Parcel parcel;
        parcel.setDataCapacity(capacity);
        for (int32_t i = 0; i < 200; i++) parcel.writeInt32(i);
        ASSERT_EQ(NO_ERROR, parcel.setData(parcel.data() + 4, 12));
        EXPECT_EQ("010000000200000003000000", hexOf(parcel));
        EXPECT_EQ(12u, parcel.dataCapacity());
        // Of the size of its block, all of it.
        ASSERT_EQ(NO_ERROR, parcel.setData(parcel.data(), 12));
        EXPECT_EQ("010000000200000003000000", hexOf(parcel));
        ASSERT_EQ(NO_ERROR, parcel.setData(parcel.data() + 4, 0));
        EXPECT_EQ("", hexOf(parcel));
    }
}

TEST(HostParcel, GivesItsMemoryBackWhenItIsSetToNothing) {
    Parcel parcel;
    const uint8_t none = 0;
    ASSERT_EQ(NO_ERROR, parcel.setData(&none, 0));
    EXPECT_NE(nullptr, parcel.readInplace(0));
    // Every other time there is a block for nothing.
    ASSERT_EQ(NO_ERROR, parcel.setData(&none, 0));
    EXPECT_EQ(nullptr, parcel.readInplace(0));
    ASSERT_EQ(NO_ERROR, parcel.setData(&none, 0));
    EXPECT_NE(nullptr, parcel.readInplace(0));
}

TEST(HostParcel, WritesBehindItsBlockFromAnyPositionBeyond) {
    for (const size_t position :
         {size_t{1000}, size_t{INT32_MAX} - 15, size_t{INT32_MAX} - 2, size_t{INT32_MAX}}) {
        Parcel parcel;
        parcel.writeInt32(5);
        parcel.setDataPosition(position);
        EXPECT_EQ(NO_ERROR, parcel.writeInt32(6)) << position;
        EXPECT_EQ(132u, parcel.dataPosition()) << position;
    }
}

TEST(HostParcel, ReportsAWriteThatFindsNoRoom) {
    const uint8_t bytes[4] = {5, 0, 0, 0};
    Parcel parcel;
    parcel.setData(bytes, sizeof(bytes));
    parcel.setDataPosition(INT32_MAX);
    EXPECT_EQ(BAD_VALUE, parcel.writeInt32(1));
    EXPECT_NE(NO_ERROR, parcel.write(bytes, sizeof(bytes)));
    EXPECT_NE(NO_ERROR, parcel.writeString16(String16("a")));
    parcel.setDataPosition(0);
    EXPECT_EQ("05000000", hexOf(parcel));
}

TEST(HostParcel, WritesSafelyBeyondItsAllocation) {
    Parcel parcel;
    parcel.writeInt32(5);
    parcel.setDataPosition(1000);
    ASSERT_EQ(NO_ERROR, parcel.writeInt32(6));
    const size_t end = parcel.dataPosition();
    parcel.setDataPosition(end - 4);
    EXPECT_EQ(6, parcel.readInt32());
    parcel.setDataPosition(0);
    EXPECT_EQ(5, parcel.readInt32());
    EXPECT_EQ(end, parcel.dataSize());
}

TEST(HostParcel, MakesRoomForWhatItAppendsBeforeItsEnd) {
    Parcel source;
    source.writeInt64(7);
    Parcel parcel;
    ASSERT_EQ(NO_ERROR, parcel.setDataSize(128));
    ASSERT_EQ(NO_ERROR, parcel.appendFrom(&source, 0, 8));
    EXPECT_EQ(136u, parcel.dataSize());
    EXPECT_GE(parcel.dataCapacity(), parcel.dataSize());
}

TEST(HostParcel, ShowsNoForeignMemoryWhereNothingWasWritten) {
    {
        Parcel dirty;
        const std::vector<uint8_t> bytes(200, 0xaa);
        dirty.write(bytes.data(), bytes.size());
    }
    Parcel parcel;
    ASSERT_EQ(NO_ERROR, parcel.setDataSize(200));
    EXPECT_EQ(std::string(400, '0'), hexOf(parcel));
}

TEST(HostParcel, CountsItsAllocations) {
    const size_t count = Parcel::getGlobalAllocCount();
    const size_t size = Parcel::getGlobalAllocSize();
    {
        Parcel parcel;
        parcel.setDataCapacity(1000);
        EXPECT_EQ(count + 1, Parcel::getGlobalAllocCount());
        EXPECT_EQ(size + 1000, Parcel::getGlobalAllocSize());
        parcel.setDataCapacity(3000);
        EXPECT_EQ(count + 1, Parcel::getGlobalAllocCount());
    }
    EXPECT_EQ(count, Parcel::getGlobalAllocCount());
    EXPECT_EQ(size, Parcel::getGlobalAllocSize());
}

TEST(HostParcel, ShowsNoBytesOfASmallParcelBefore) {
    for (int i = 0; i < 20; i++) {
        Parcel parcel;
        ASSERT_EQ(NO_ERROR, parcel.setDataSize(128));
        EXPECT_EQ(std::string(256, '0'), hexOf(parcel));
        const std::vector<uint8_t> bytes(128, 0xaa);
        parcel.write(bytes.data(), bytes.size());
    }
}

TEST(HostParcel, CountsWhatOneThreadTakesAndAnotherGivesBack) {
    const size_t count = Parcel::getGlobalAllocCount();
    const size_t size = Parcel::getGlobalAllocSize();
    auto parcel = std::make_unique<Parcel>();
    std::thread([&] { parcel->setDataCapacity(100); }).join();
    EXPECT_EQ(count + 1, Parcel::getGlobalAllocCount());
    EXPECT_EQ(size + 100, Parcel::getGlobalAllocSize());
    std::thread([&] { parcel.reset(); }).join();
    EXPECT_EQ(count, Parcel::getGlobalAllocCount());
    EXPECT_EQ(size, Parcel::getGlobalAllocSize());
}

// Made before the thread's first parcel, so destroyed after what the thread keeps.
struct LastParcel {
    ~LastParcel() {
        Parcel parcel;
        parcel.writeInt32(value);
        parcel.setDataPosition(0);
        value = parcel.readInt32() + 1;
        if (result != nullptr) *result = value;
    }
    int value = 6;
    int* result = nullptr;
};

TEST(HostParcel, WorksWhileItsThreadEnds) {
    const size_t count = Parcel::getGlobalAllocCount();
    int result = 0;
    std::thread([&] {
        static thread_local LastParcel last;
        last.result = &result;
        Parcel first;
        first.writeInt32(1);
    }).join();
    EXPECT_EQ(7, result);
    EXPECT_EQ(count, Parcel::getGlobalAllocCount());
}

TEST(HostParcel, ComparesBytesThenSizes) {
    Parcel a;
    Parcel b;
    EXPECT_EQ(0, a.compareData(b));
    a.writeInt32(1);
    EXPECT_GT(a.compareData(b), 0);
    b.writeInt32(2);
    EXPECT_LT(a.compareData(b), 0);
    b.setDataPosition(1000);
    a.setDataPosition(1000);
    EXPECT_LT(a.compareData(b), 0);
}

TEST(HostParcel, WritesTheThreadsPolicyAndWorkSourceIntoAToken) {
    IPCThreadState* thread = IPCThreadState::self();
    thread->setStrictModePolicy(5);
    const int64_t source = thread->setCallingWorkSourceUid(1000);
    Parcel parcel;
    parcel.writeInterfaceToken(String16("a"));
    thread->restoreCallingWorkSource(source);
    thread->setStrictModePolicy(0);
    EXPECT_EQ(
            "05000080"
            "e8030000"
            "54535953"
            "01000000"
            "61000000",
            hexOf(parcel));
    EXPECT_EQ(1000u, parcel.readCallingWorkSourceUid());
    EXPECT_TRUE(parcel.replaceCallingWorkSourceUid(1001));
    EXPECT_EQ(1001u, parcel.readCallingWorkSourceUid());
}

TEST(HostParcel, TakesThePolicyOverFromAToken) {
    Parcel parcel;
    parcel.writeInt32(7);
    parcel.writeInt32(-1);
    parcel.writeInt32(0x53595354);
    parcel.writeString16(String16("a"));
    parcel.setDataPosition(0);
    EXPECT_TRUE(parcel.enforceInterface(String16("a")));
    EXPECT_EQ(7, IPCThreadState::self()->getStrictModePolicy());
    IPCThreadState::self()->setStrictModePolicy(0);
}

TEST(HostParcel, CarriesExceptions) {
    Parcel parcel;
    parcel.writeNoException();
    EXPECT_EQ("00000000", hexOf(parcel));
    binder::Status::fromServiceSpecificError(12, "why").writeToParcel(&parcel);
    parcel.setDataPosition(0);
    EXPECT_EQ(0, parcel.readExceptionCode());
    binder::Status status;
    EXPECT_EQ(NO_ERROR, status.readFromParcel(parcel));
    EXPECT_EQ(binder::Status::EX_SERVICE_SPECIFIC, status.exceptionCode());
    EXPECT_EQ(12, status.serviceSpecificErrorCode());
    EXPECT_STREQ("why", status.exceptionMessage().string());
    EXPECT_EQ(binder::Status::EX_TRANSACTION_FAILED, parcel.readExceptionCode());
}

TEST(HostParcel, SkipsAReplyHeader) {
    Parcel parcel;
    parcel.writeInt32(binder::Status::EX_HAS_REPLY_HEADER);
    parcel.writeInt32(12);
    parcel.writeInt64(0);
    parcel.writeInt32(99);
    parcel.setDataPosition(0);
    EXPECT_EQ(0, parcel.readExceptionCode());
    EXPECT_EQ(99, parcel.readInt32());
}

// An exception's message, "why", as a parcel has it.
constexpr int32_t kWhy[] = {3, 'w' | 'h' << 16, 'y'};

void writeWords(Parcel* parcel, const std::vector<int32_t>& words) {
    for (const int32_t word : words) parcel->writeInt32(word);
}

TEST(HostParcel, ReadsWhatAnExceptionHolds) {
    using binder::Status;
    const struct {
        int32_t code;
        std::vector<int32_t> afterMessage;
        int32_t error;
    } exceptions[] = {
            {Status::EX_SECURITY, {0}, 0},
            {Status::EX_ILLEGAL_STATE, {4}, 0},
            {Status::EX_UNSUPPORTED_OPERATION, {12, 5, 6}, 0},
            {Status::EX_SERVICE_SPECIFIC, {0, -12}, -12},
            {Status::EX_SERVICE_SPECIFIC, {8, 5, 12}, 12},
            {Status::EX_PARCELABLE, {0, 12, 5, 6}, 0},
            {Status::EX_PARCELABLE, {12, 5, 6, 4}, 0},
    };
    for (const auto& exception : exceptions) {
        SCOPED_TRACE(exception.code);
        // Of what follows, also if that is nothing, not a byte is taken.
        for (const bool isLast : {false, true}) {
            Parcel parcel;
            parcel.writeInt32(exception.code);
            writeWords(&parcel, {std::begin(kWhy), std::end(kWhy)});
            writeWords(&parcel, exception.afterMessage);
            if (!isLast) parcel.writeInt32(99);
            parcel.setDataPosition(0);
            Status status;
            EXPECT_EQ(NO_ERROR, status.readFromParcel(parcel));
            EXPECT_EQ(exception.code, status.exceptionCode());
            EXPECT_EQ(exception.error, status.serviceSpecificErrorCode());
            EXPECT_STREQ("why", status.exceptionMessage().string());
            EXPECT_EQ(isLast ? 0u : 4u, parcel.dataAvail());
        }
    }
}

TEST(HostParcel, SkipsAReplyHeaderThatNothingFollows) {
    Parcel parcel;
    writeWords(&parcel, {binder::Status::EX_HAS_REPLY_HEADER, 12, 5, 6});
    parcel.setDataPosition(0);
    binder::Status status;
    EXPECT_EQ(NO_ERROR, status.readFromParcel(parcel));
    EXPECT_TRUE(status.isOk());
    EXPECT_EQ(0u, parcel.dataAvail());
}

TEST(HostParcel, TakesADamagedExceptionForAFailedTransaction) {
    using binder::Status;
    constexpr int32_t header = Status::EX_HAS_REPLY_HEADER;
    constexpr int32_t plain = Status::EX_ILLEGAL_ARGUMENT;
    constexpr int32_t specific = Status::EX_SERVICE_SPECIFIC;
    constexpr int32_t parcelable = Status::EX_PARCELABLE;
    const struct {
        std::vector<int32_t> words;
        status_t error;
    } damaged[] = {
            {{}, NOT_ENOUGH_DATA},
            {{header}, NOT_ENOUGH_DATA},
            {{header, -1, 0}, UNKNOWN_ERROR},
            {{header, 9, 0}, UNKNOWN_ERROR},
            {{header, INT32_MAX, 0}, UNKNOWN_ERROR},
            {{plain}, UNEXPECTED_NULL},
            {{plain, -1, 0}, UNEXPECTED_NULL},
            {{plain, kWhy[0], kWhy[1], kWhy[2]}, NOT_ENOUGH_DATA},
            {{plain, kWhy[0], kWhy[1], kWhy[2], -1, 0}, UNKNOWN_ERROR},
            {{plain, kWhy[0], kWhy[1], kWhy[2], 9, 0}, UNKNOWN_ERROR},
            {{specific, kWhy[0], kWhy[1], kWhy[2], 0}, NOT_ENOUGH_DATA},
            {{specific, kWhy[0], kWhy[1], kWhy[2], -1, 0}, UNKNOWN_ERROR},
            {{parcelable, kWhy[0], kWhy[1], kWhy[2], 0}, NOT_ENOUGH_DATA},
            {{parcelable, kWhy[0], kWhy[1], kWhy[2], -1, 0}, UNKNOWN_ERROR},
            {{parcelable, kWhy[0], kWhy[1], kWhy[2], 0, -1, 0}, UNKNOWN_ERROR},
            {{parcelable, kWhy[0], kWhy[1], kWhy[2], 0, 9, 0}, UNKNOWN_ERROR},
    };
    for (size_t i = 0; i < std::size(damaged); i++) {
        SCOPED_TRACE(i);
        Parcel parcel;
        writeWords(&parcel, damaged[i].words);
        parcel.setDataPosition(0);
        Status status;
        EXPECT_EQ(damaged[i].error, status.readFromParcel(parcel));
        EXPECT_EQ(Status::EX_TRANSACTION_FAILED, status.exceptionCode());
        EXPECT_EQ(damaged[i].error, status.transactionError());
        EXPECT_STREQ("", status.exceptionMessage().string());
    }
}

TEST(HostParcel, WritesExceptions) {
    using binder::Status;
    const auto written = [](const Status& status) {
        Parcel parcel;
        EXPECT_EQ(NO_ERROR, status.writeToParcel(&parcel));
        return hexOf(parcel);
    };
    EXPECT_EQ("00000000", written(Status::ok()));
    EXPECT_EQ(
            "fdffffff"
            "03000000"
            "7700680079000000"
            "00000000",
            written(Status::fromExceptionCode(Status::EX_ILLEGAL_ARGUMENT, "why")));
    EXPECT_EQ(
            "f8ffffff"
            "00000000"
            "00000000"
            "00000000"
            "0c000000",
            written(Status::fromServiceSpecificError(12)));
    EXPECT_EQ(
            "f7ffffff"
            "00000000"
            "00000000"
            "00000000"
            "00000000",
            written(Status::fromExceptionCode(Status::EX_PARCELABLE)));
    // The transaction itself fails with it.
    Parcel parcel;
    EXPECT_EQ(DEAD_OBJECT, Status::fromStatusT(DEAD_OBJECT).writeToParcel(&parcel));
    EXPECT_EQ(0u, parcel.dataSize());
}

TEST(HostParcel, PrintsExceptions) {
    using binder::Status;
    const auto printed = [](const Status& status) {
        return std::string(status.toString8().string());
    };
    EXPECT_EQ("No error", printed(Status::ok()));
    EXPECT_EQ("Status(-5, EX_ILLEGAL_STATE): 'why'",
              printed(Status::fromExceptionCode(Status::EX_ILLEGAL_STATE, "why")));
    EXPECT_EQ("Status(-8, EX_SERVICE_SPECIFIC): '12: why'",
              printed(Status::fromServiceSpecificError(12, "why")));
    EXPECT_EQ("Status(-129, EX_TRANSACTION_FAILED): '-32: '",
              printed(Status::fromStatusT(DEAD_OBJECT)));
    EXPECT_EQ("Status(-77, -77): ''", printed(Status::fromExceptionCode(-77)));
}

TEST(HostParcel, RefusesFileDescriptors) {
    Parcel parcel;
    EXPECT_EQ(INVALID_OPERATION, parcel.writeFileDescriptor(0));
    EXPECT_EQ(INVALID_OPERATION, parcel.writeDupFileDescriptor(0));
    EXPECT_EQ(BAD_TYPE, parcel.writeNativeHandle(nullptr));
    native_handle handle = {sizeof(native_handle), 0, 0, {}};
    EXPECT_EQ(INVALID_OPERATION, parcel.writeNativeHandle(&handle));
    handle.version--;
    EXPECT_EQ(BAD_TYPE, parcel.writeNativeHandle(&handle));
    EXPECT_EQ(nullptr, parcel.readNativeHandle());
    EXPECT_EQ(0u, parcel.dataSize());
    EXPECT_EQ(BAD_TYPE, parcel.readFileDescriptor());
    EXPECT_FALSE(parcel.hasFileDescriptors());
    const bool before = parcel.pushAllowFds(false);
    EXPECT_EQ(FDS_NOT_ALLOWED, parcel.writeFileDescriptor(0));
    parcel.restoreAllowFds(before);
    EXPECT_TRUE(parcel.allowFds());
}

TEST(HostParcel, CarriesABlobInPlace) {
    Parcel parcel;
    {
        Parcel::WritableBlob blob;
        ASSERT_EQ(NO_ERROR, parcel.writeBlob(100000, false, &blob));
        memset(blob.data(), 0x5a, blob.size());
        blob.release();
    }
    parcel.setDataPosition(0);
    Parcel::ReadableBlob blob;
    ASSERT_EQ(NO_ERROR, parcel.readBlob(100000, &blob));
    EXPECT_EQ(0x5a, static_cast<const uint8_t*>(blob.data())[99999]);
    EXPECT_EQ(100000u, blob.size());
    parcel.setDataPosition(0);
    EXPECT_EQ(BAD_VALUE, parcel.readBlob(100001, &blob));
}

TEST(HostParcel, RefusesABlobThatIsNotInPlace) {
    Parcel parcel;
    Parcel::ReadableBlob blob;
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readBlob(0, &blob));
    for (const int32_t type : {1, 2, -1}) {
        parcel.setDataPosition(0);
        writeWords(&parcel, {type, 0});
        parcel.setDataPosition(0);
        EXPECT_EQ(BAD_VALUE, parcel.readBlob(4, &blob)) << type;
        EXPECT_EQ(nullptr, blob.data());
        EXPECT_EQ(0u, blob.size());
    }
}

TEST(HostParcel, WritesNoBlobThatIsTooLarge) {
    Parcel parcel;
    Parcel::WritableBlob blob;
    EXPECT_EQ(BAD_VALUE, parcel.writeBlob(static_cast<size_t>(INT32_MAX) + 1, false, &blob));
    EXPECT_EQ(0u, parcel.dataSize());
    EXPECT_EQ(NO_MEMORY, parcel.writeBlob(INT32_MAX - 1, false, &blob));
    EXPECT_EQ(nullptr, blob.data());
}

TEST(HostParcel, PrintsItsBytes) {
    Parcel parcel;
    parcel.writeInt32(0x01020304);
    StringOutput output;
    output << parcel;
    EXPECT_EQ("Parcel(4 bytes\n00000000: 04 03 02 01)", output.text);
}

}  // namespace
}  // namespace android

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <thread>
#include <vector>

#include "modules/AvManagerCtrl.h"
#include "tests/support/RecordingManager.h"

using android::_EunmAvCtrlHdmiout_;
using android::IAvManagerCtrl;
using android::sp;
using tarn::test::Bytes;
using tarn::test::hex;
using tarn::test::RecordingManager;
using tarn::test::words;

namespace {

constexpr size_t kTransportLimit = 1040384;

class AvManagerCtrl : public ::testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    const sp<IAvManagerCtrl> av = new android::AvManagerCtrl(manager);
};

/** A test result as the service sends it: length as stated, whatever bytes follow. */
Bytes testResult(int32_t testStatus, int32_t length, const Bytes& bytes) {
    Bytes reply = words({0, testStatus, length});
    reply.insert(reply.end(), bytes.begin(), bytes.end());
    return reply;
}

Bytes countingBytes(size_t size) {
    Bytes bytes(size);
    std::iota(bytes.begin(), bytes.end(), static_cast<uint8_t>(1));
    return bytes;
}

Bytes copyOf(const unsigned char* buffer, size_t size) {
    return Bytes(buffer, buffer + size);
}

}  // namespace

using AvManagerCtrlMetadata = AvManagerCtrl;

TEST_F(AvManagerCtrlMetadata, OfLengthZeroStillCarriesTheHeaderAndTheLength) {
    _EunmAvCtrlHdmiout_ header{1, 2, 3, 4, 5, 6, 7, 8};
    unsigned char data[] = {0xaa};

    av->send_metadata_process(&header, data, 0);
    av->send_metadata_process(&header, nullptr, 0);

    const Bytes expected = words({0x1203, 1, 2, 3, 4, 5, 6, 7, 8, 0});
    EXPECT_EQ(manager->requests().at(0), expected);
    EXPECT_EQ(manager->requests().at(1), expected);
}

TEST_F(AvManagerCtrlMetadata, OfNegativeLengthReadsNoBytes) {
    _EunmAvCtrlHdmiout_ header{1, 2, 3, 4, 5, 6, 7, 8};
    unsigned char data[] = {0xaa};

    av->send_metadata_process(&header, data, -1);

    EXPECT_EQ(manager->requests().at(0), words({0x1203, 1, 2, 3, 4, 5, 6, 7, 8}));
}

using AvManagerCtrlTestResult = AvManagerCtrl;

TEST_F(AvManagerCtrlTestResult, IsTheBytesBehindTheLength) {
    manager->answer(testResult(0, 5, hex("0a0b0c0d 0e000000")));
    EXPECT_EQ(copyOf(av->getDspTestResult(), 5), hex("0a0b0c0d0e"));
    EXPECT_EQ(manager->requests().at(0), words({0x124D}));
}

TEST_F(AvManagerCtrlTestResult, IsNullOnlyWhenTheTestsOwnStatusIsMinusOne) {
    manager->answer(testResult(-1, 4, hex("01020304")));
    EXPECT_EQ(av->getDspTestResult(), nullptr);

    manager->answer(testResult(-5, 4, hex("01020304")));
    EXPECT_NE(av->getDspTestResult(), nullptr);

    manager->answer(words({-1, -1}));
    EXPECT_NE(av->getDspTestResult(), nullptr);
}

TEST_F(AvManagerCtrlTestResult, HasTheSameAddressOnEveryCall) {
    manager->answer(testResult(0, 4, hex("01020304")));
    unsigned char* const first = av->getDspTestResult();
    ASSERT_NE(first, nullptr);

    const std::vector<Bytes> replies{testResult(0, 4, hex("05060708")),
                                     testResult(0, 0, {}),
                                     testResult(0, -1, {}),
                                     words({0}),
                                     words({-1}),
                                     Bytes{}};
    for (const Bytes& reply : replies) {
        manager->answer(reply);
        EXPECT_EQ(av->getDspTestResult(), first);
    }

    const sp<IAvManagerCtrl> other = new android::AvManagerCtrl(new RecordingManager);
    EXPECT_EQ(other->getDspTestResult(), first);
}

TEST_F(AvManagerCtrlTestResult, HasTheSameAddressOnEveryThread) {
    manager->answer(testResult(0, 4, hex("01020304")));
    unsigned char* const here = av->getDspTestResult();
    unsigned char* there = nullptr;
    std::thread([this, &there] { there = av->getDspTestResult(); }).join();
    EXPECT_EQ(there, here);
}

TEST_F(AvManagerCtrlTestResult, OverwritesOnlyAsManyBytesAsItHas) {
    manager->answer(testResult(0, 8, hex("1112131415161718")));
    av->getDspTestResult();

    manager->answer(testResult(0, 3, hex("21222300")));
    EXPECT_EQ(copyOf(av->getDspTestResult(), 8), hex("2122231415161718"));
}

TEST_F(AvManagerCtrlTestResult, KeepsTheFormerBytesWhenTheLengthIsNotThatOfTheReply) {
    manager->answer(testResult(0, 4, hex("31323334")));
    unsigned char* const buffer = av->getDspTestResult();

    for (const int32_t length :
         {-1, -2, std::numeric_limits<int32_t>::min(), 9, 0x100, 1040384, 1040385,
          std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::max() - 3}) {
        manager->answer(testResult(0, length, hex("4142434445464748")));
        EXPECT_EQ(av->getDspTestResult(), buffer) << length;
        EXPECT_EQ(copyOf(buffer, 4), hex("31323334")) << length;
    }
}

TEST_F(AvManagerCtrlTestResult, KeepsTheFormerBytesWhenTheReplyIsShortOrTheCommandFails) {
    manager->answer(testResult(0, 4, hex("51525354")));
    unsigned char* const buffer = av->getDspTestResult();

    for (const Bytes& reply :
         {Bytes{}, hex("0000"), words({0}), hex("00000000 0000"), words({0, 0}),
          hex("00000000 00000000 0400"), words({0, 0, 4}), words({-1, 0, 4, 0x61616161})}) {
        manager->answer(reply);
        EXPECT_EQ(av->getDspTestResult(), buffer);
        EXPECT_EQ(copyOf(buffer, 4), hex("51525354"));
    }
}

TEST_F(AvManagerCtrlTestResult, HoldsWhatTheDevicesTransportCarries) {
    const Bytes bytes = countingBytes(kTransportLimit);
    manager->answer(testResult(0, static_cast<int32_t>(bytes.size()), bytes));

    EXPECT_EQ(copyOf(av->getDspTestResult(), bytes.size()), bytes);
}

TEST_F(AvManagerCtrlTestResult, IsNotOverrunByALongerReplyOfAnotherTransport) {
    manager->answer(testResult(0, 4, hex("71727374")));
    unsigned char* const buffer = av->getDspTestResult();

    for (const size_t size : {4 * kTransportLimit, 16 * kTransportLimit}) {
        manager->answer(testResult(0, static_cast<int32_t>(size), countingBytes(size)));
        EXPECT_EQ(av->getDspTestResult(), buffer);
        EXPECT_EQ(copyOf(buffer, 4), hex("71727374"));
    }
}

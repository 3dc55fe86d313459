#include <binder/Binder.h>
#include <binder/Parcel.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <string>
#include <utility>

#include "tests/unit/host/HidlFakes.h"

namespace tarn::test {

using ::android::BAD_TYPE;
using ::android::BAD_VALUE;
using ::android::NOT_ENOUGH_DATA;
using ::android::String16;
using ::android::UNKNOWN_TRANSACTION;

namespace {

TEST(HwTarnStub, RefusesAMessageWithoutTheRightToken) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    const Fill request = [](Parcel* data) {
        data->writeInt32(1);
        data->write("a\0", 2);
    };
    EXPECT_EQ(send(stub, kHwInvoke, kHwTarnToken, request), OK);
    EXPECT_EQ(send(stub, kHwInvoke, kCallbackToken, request), BAD_TYPE);
    EXPECT_EQ(send(stub, kHwInvoke, "", request), BAD_TYPE);
    EXPECT_EQ(send(stub, kHwInvoke, nullptr, request), BAD_TYPE);
    EXPECT_EQ(send(stub, kHwInvoke, nullptr, nothing), BAD_TYPE);
    EXPECT_EQ(service->calls, 1);
}

TEST(HwTarnStub, AnswersMalformedMessagesWithAnError) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    const struct {
        uint32_t code;
        status_t expected;
        Fill fill;
    } messages[] = {
            {kHwInvoke, NOT_ENOUGH_DATA, nothing},
            {kHwInvoke, BAD_VALUE, [](Parcel* data) { data->writeInt32(-1); }},
            {kHwInvoke, BAD_VALUE, [](Parcel* data) { data->writeInt32(INT32_MIN); }},
            {kHwInvoke, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(INT32_MAX); }},
            {kHwInvoke, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(INT32_MAX - 1); }},
            {kHwInvoke, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(0); }},
            {kHwInvoke, NOT_ENOUGH_DATA,
             [](Parcel* data) {
                 data->writeInt32(4);
                 data->write("abcd", 4);
             }},
            {kHwInvoke, BAD_VALUE,
             [](Parcel* data) {
                 data->writeInt32(3);
                 data->write("abcd", 4);
             }},
            {kHwPostEvent, NOT_ENOUGH_DATA, nothing},
            {kHwPostEvent, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(1); }},
            {kHwPostEvent, NOT_ENOUGH_DATA,
             [](Parcel* data) {
                 data->writeInt32(1);
                 data->writeInt32(1000);
                 data->writeInt32(0);
             }},
            {kHwRegisterCallback, BAD_TYPE, nothing},
            {kHwRegisterCallback, NOT_ENOUGH_DATA,
             [](Parcel* data) { data->writeStrongBinder(nullptr); }},
            {kHwRegisterCallback, BAD_TYPE,
             [](Parcel* data) {
                 data->write("This is no binder...", 20);
                 data->writeInt32(1);
                 data->writeInt32(1);
             }},
            {kHwRegisterCallback, BAD_TYPE,
             [](Parcel* data) {
                 data->writeStrongBinder(new BBinder);
                 data->writeInt32(1);
             }},
            {kHwRegisterCallback, BAD_TYPE,
             [&stub](Parcel* data) {
                 data->writeStrongBinder(stub);
                 data->writeInt32(1);
             }},
    };
    for (size_t i = 0; i < std::size(messages); i++) {
        SCOPED_TRACE(i);
        EXPECT_EQ(send(stub, messages[i].code, kHwTarnToken, messages[i].fill),
                  messages[i].expected);
    }
    EXPECT_EQ(service->calls, 0);
}

TEST(HwTarnStub, AnswersUnknownCodesWithAnError) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    for (const uint32_t code : {0u, 1u, 4u, 6u, 0x00ffffffu, 0x7fffffffu}) {
        SCOPED_TRACE(code);
        EXPECT_EQ(send(stub, code, kHwTarnToken, nothing), UNKNOWN_TRANSACTION);
    }
    EXPECT_EQ(service->calls, 0);
}

TEST(HwTarnStub, NeedsNoReply) {
    const sp<RecordingService> service = new RecordingService;
    Parcel data;
    data.writeInterfaceToken(String16(kHwTarnToken));
    data.writeInt32(1);
    data.write("a\0", 2);
    EXPECT_EQ(stubOf(service)->transact(kHwInvoke, data, nullptr), OK);
    EXPECT_EQ(service->lastRequest, "a");
}

TEST(HwTarnStub, NamesItsInterface) {
    const sp<RecordingService> service = new RecordingService;
    EXPECT_EQ(stubOf(service)->getInterfaceDescriptor(), String16(kHwTarnToken));
}

TEST(HwTarnCallbackStub, AnswersMalformedEventsWithAnError) {
    const sp<RecordingCallback> callback = new RecordingCallback;
    const sp<IBinder> stub = stubOf(callback);
    for (const uint32_t code : {kHwNotify, kHwNotifyVec}) {
        for (const auto& [length, expected] :
             {std::pair(-1, BAD_VALUE), std::pair(5, NOT_ENOUGH_DATA),
              std::pair(0x7fffffff, NOT_ENOUGH_DATA)}) {
            SCOPED_TRACE(testing::Message() << code << " " << length);
            EXPECT_EQ(send(stub, code, kCallbackToken,
                           [length = length](Parcel* data) {
                               data->writeInt32(1);
                               data->writeInt32(2);
                               data->writeInt32(length);
                               data->writeInt32(0);
                           }),
                      expected);
        }
        for (const int words : {0, 1, 2}) {
            EXPECT_EQ(send(stub, code, kCallbackToken,
                           [words](Parcel* data) {
                               for (int i = 0; i < words; i++) data->writeInt32(1);
                           }),
                      NOT_ENOUGH_DATA)
                    << words;
        }
        EXPECT_EQ(send(stub, code, kHwTarnToken, nothing), BAD_TYPE);
    }
    EXPECT_EQ(send(stub, 3, kCallbackToken, nothing), UNKNOWN_TRANSACTION);
    EXPECT_EQ(callback->calls, 0);
}

}  // namespace
}  // namespace tarn::test

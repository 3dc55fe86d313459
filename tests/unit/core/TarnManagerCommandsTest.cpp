#include <gtest/gtest.h>
#include <tarn/ITarnListener.h>

#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::Parcel;
using android::sp;
using android::String16;
using namespace tarn::test;

namespace {

/** Answers each overload's call and gives the request that it sent. */
class TarnManagerCommands : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<RecordingManager> manager = new RecordingManager;
};

TEST_F(TarnManagerCommands, PackIntegersAndBooleansInTheirOrder) {
    manager->exeCmdSet_Int(0x4100);
    EXPECT_EQ(sent(), hex("00410000"));
    manager->exeCmdSet_Int(0x4101, -2);
    EXPECT_EQ(sent(), hex("01410000 feffffff"));
    manager->exeCmdSet_Int(0x4101, true);
    EXPECT_EQ(sent(), hex("01410000 01000000"));
    manager->exeCmdSet_Int(0x4101, 3, 4);
    EXPECT_EQ(sent(), hex("01410000 03000000 04000000"));
    manager->exeCmdSet_Int(0x4101, 3, true);
    EXPECT_EQ(sent(), hex("01410000 03000000 01000000"));
    manager->exeCmdSet_Int(0x4101, 5, 6, 7);
    EXPECT_EQ(sent(), hex("01410000 05000000 06000000 07000000"));
}

TEST_F(TarnManagerCommands, PackTheSameWayForEveryKindOfResult) {
    Parcel out;
    manager->exeCmdSet_Bool(1);
    EXPECT_EQ(sent(), hex("01000000"));
    manager->exeCmdSet_Bool(1, 2);
    EXPECT_EQ(sent(), hex("01000000 02000000"));
    manager->exeCmdSet_Bool(1, false);
    EXPECT_EQ(sent(), hex("01000000 00000000"));
    manager->exeCmdSet_Bool(1, 2, true);
    EXPECT_EQ(sent(), hex("01000000 02000000 01000000"));
    manager->exeCmdSet_Bool(1, 2, 3);
    EXPECT_EQ(sent(), hex("01000000 02000000 03000000"));
    manager->exeCmdSet_Str(1);
    EXPECT_EQ(sent(), hex("01000000"));
    manager->exeCmdSet_Str(1, 9);
    EXPECT_EQ(sent(), hex("01000000 09000000"));
    manager->exeCmdSet_Parcel(1, &out);
    EXPECT_EQ(sent(), hex("01000000"));
    manager->exeCmdSet_Parcel(1, 8, &out);
    EXPECT_EQ(sent(), hex("01000000 08000000"));
    manager->exeCmdSet_Parcel(1, 8, 9, &out);
    EXPECT_EQ(sent(), hex("01000000 08000000 09000000"));
}

TEST_F(TarnManagerCommands, AppendACallersParcelUnchanged) {
    Parcel args;
    args.writeString16(String16("ab"));
    args.writeInt32(7);
    Parcel out;
    manager->exeCmdSet_Int(2, args);
    EXPECT_EQ(sent(), hex("02000000 02000000 61006200 00000000 07000000"));
    manager->exeCmdSet_Parcel(2, args, &out);
    EXPECT_EQ(sent(), hex("02000000 02000000 61006200 00000000 07000000"));
    manager->exeCmdSet_Int(2, Parcel());
    EXPECT_EQ(sent(), hex("02000000"));
}

TEST_F(TarnManagerCommands, TakeEveryStatusButMinusOneForASuccess) {
    Parcel out;
    manager->answer(Reply(-5).boolean(true));
    EXPECT_EQ(manager->exeCmdSet_Int(1), -5);
    EXPECT_TRUE(manager->exeCmdSet_Bool(1));
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), 0);
    EXPECT_EQ(out.readInt32(), 1);
    manager->answer(Reply(-5).s16("ab"));
    EXPECT_EQ(manager->exeCmdSet_Str(1), "ab");
}

TEST_F(TarnManagerCommands, ReturnTheFailureValueOnMinusOne) {
    manager->answer(Reply(-1).boolean(true));
    EXPECT_EQ(manager->exeCmdSet_Int(1), -1);
    EXPECT_FALSE(manager->exeCmdSet_Bool(1));
    manager->answer(Reply(-1).s16("ab"));
    EXPECT_EQ(manager->exeCmdSet_Str(1), "");
    int values[] = {1};
    EXPECT_EQ(manager->exeCmdSet_Array(1, values, 1), -1);
}

TEST_F(TarnManagerCommands, ReadAnyNonZeroWordAsTrue) {
    manager->answer(words({0, 7}));
    EXPECT_TRUE(manager->exeCmdSet_Bool(1));
    manager->answer(words({0, 0}));
    EXPECT_FALSE(manager->exeCmdSet_Bool(1));
}

TEST_F(TarnManagerCommands, ConvertTextsToUtf8) {
    manager->answer(Reply(0).s16("Grüße \xf0\x9f\x98\x80"));
    EXPECT_EQ(manager->exeCmdSet_Str(1), "Grüße \xf0\x9f\x98\x80");
}

TEST_F(TarnManagerCommands, ReadDefaultsBehindTheEndOfAShortReply) {
    manager->answer(words({0}));
    EXPECT_FALSE(manager->exeCmdSet_Bool(1));
    EXPECT_EQ(manager->exeCmdSet_Str(1), "");
    manager->answer(Bytes());
    EXPECT_EQ(manager->exeCmdSet_Int(1), 0);
    EXPECT_FALSE(manager->exeCmdSet_Bool(1));
    EXPECT_EQ(manager->exeCmdSet_Str(1), "");
}

TEST_F(TarnManagerCommands, HandOverTheReplyWithoutItsStatus) {
    Parcel out;
    out.writeInt32(99);
    manager->answer(words({0, 10, 20}));
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), 0);
    EXPECT_EQ(out.dataPosition(), 0u);
    EXPECT_EQ(out.dataSize(), 8u);
    EXPECT_EQ(out.readInt32(), 10);
    EXPECT_EQ(out.readInt32(), 20);
}

TEST_F(TarnManagerCommands, EmptyTheOutParcelWhenTheReplyIsABareStatus) {
    Parcel out;
    out.writeInt32(99);
    manager->answer(words({0}));
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), 0);
    EXPECT_EQ(out.dataSize(), 0u);
}

TEST_F(TarnManagerCommands, KeepTheOutParcelOnAnEmptyReplyAndStillReturnZero) {
    for (const Bytes& reply : {Bytes(), Bytes{0}, Bytes{0, 0, 0}}) {
        Parcel out;
        out.writeInt32(99);
        manager->answer(reply);
        EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), 0);
        out.setDataPosition(0);
        EXPECT_EQ(out.readInt32(), 99);
    }
}

TEST_F(TarnManagerCommands, LeaveTheOutParcelAloneOnFailure) {
    Parcel out;
    out.writeInt32(99);
    manager->answer(words({-1, 5}));
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, 2, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, 2, 3, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, Parcel(), &out), -1);
    out.setDataPosition(0);
    EXPECT_EQ(out.readInt32(), 99);
}

TEST_F(TarnManagerCommands, DiscardTheReplyWithoutAnOutParcel) {
    manager->answer(words({0, 1, 2}));
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, nullptr), 0);
}

TEST_F(TarnManagerCommands, SendAnArrayWithItsCountAndReturnTheStatus) {
    int values[] = {10, -20, 30};
    manager->answer(words({6, 1}));
    EXPECT_EQ(manager->exeCmdSet_Array(3, values, 3), 6);
    EXPECT_EQ(sent(), hex("03000000 03000000 0a000000 ecffffff 1e000000"));
}

TEST_F(TarnManagerCommands, SendNothingForAnEmptyArrayAndReturnZero) {
    int values[] = {1};
    EXPECT_EQ(manager->exeCmdSet_Array(3, nullptr, 3), 0);
    EXPECT_EQ(manager->exeCmdSet_Array(3, values, 0), 0);
    EXPECT_EQ(manager->exeCmdSet_Array(3, values, -1), 0);
    EXPECT_TRUE(manager->requests().empty());
}

class Listener : public ITarnListener {
  public:
    void notify(unsigned int, int, int, const Parcel*) override {}
};

/** A manager whose transport was never made. */
class UnconnectedManager : public android::TarnManager {
  public:
    UnconnectedManager() : TarnManager(sp<android::HwTarnClient>()) {}
};

TEST(TarnManagerWithoutTransport, FailsEveryCommandSilently) {
    sp<UnconnectedManager> manager = new UnconnectedManager;
    Parcel out;
    Parcel args;
    int values[] = {1};
    LogCapture log;
    EXPECT_EQ(manager->invoke(args, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1, 2), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1, true), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1, 2, 3), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1, 2, true), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1, 2, 3, 4), -1);
    EXPECT_EQ(manager->exeCmdSet_Int(1, args), -1);
    EXPECT_FALSE(manager->exeCmdSet_Bool(1));
    EXPECT_FALSE(manager->exeCmdSet_Bool(1, 2));
    EXPECT_FALSE(manager->exeCmdSet_Bool(1, true));
    EXPECT_FALSE(manager->exeCmdSet_Bool(1, 2, true));
    EXPECT_FALSE(manager->exeCmdSet_Bool(1, 2, 3));
    EXPECT_EQ(manager->exeCmdSet_Str(1), "");
    EXPECT_EQ(manager->exeCmdSet_Str(1, 2), "");
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, args, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, 2, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, 2, 3, &out), -1);
    EXPECT_EQ(manager->exeCmdSet_Array(1, values, 1), -1);
    EXPECT_TRUE(log.lines().empty());
}

TEST(TarnManagerWithoutTransport, AnswersTheForwardersWithTheirFixedValues) {
    sp<UnconnectedManager> manager = new UnconnectedManager;
    Parcel data;
    Listener listener;
    LogCapture log;
    EXPECT_EQ(manager->isTarnReady(), -1);
    EXPECT_EQ(manager->createTarnMsgManager(), -1);
    EXPECT_EQ(manager->removeTarnMsgManager(), -1);
    EXPECT_EQ(manager->registerListener(nullptr), 0);
    EXPECT_EQ(manager->unRegisterListener(nullptr), 0);
    EXPECT_EQ(manager->registerListener(&listener), 0);
    EXPECT_EQ(manager->unRegisterListener(&listener), 0);
    EXPECT_EQ(manager->postEvent(1, data), -1);
    EXPECT_TRUE(log.lines().empty());
}

}  // namespace

#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <thread>

#include "modules/AtCfgControl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::Parcel;
using android::sp;
using android::String16;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@AtCfgControl";

/** A store in which every text is its own name, for any number of threads. */
class EchoingManager : public android::TarnManager {
  public:
    EchoingManager() : TarnManager(sp<android::HwTarnClient>()) {}

    int invoke(const Parcel& request, Parcel* reply) override {
        Parcel copy;
        copy.appendFrom(&request, 0, request.dataSize());
        copy.setDataPosition(sizeof(int32_t));
        reply->writeInt32(0);
        reply->writeString16(copy.readString16());
        reply->setDataPosition(0);
        return 0;
    }
};

class AtCfgControl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::AtCfgControl> config = new android::AtCfgControl(manager);
    char key[4] = "key";
};

TEST_F(AtCfgControl, LogsNothingWhenAllGoesWell) {
    manager->answer(words({0, 0, 0}));
    const sp<android::AtCfgControl> another = new android::AtCfgControl(manager);
    another->readWidevinevKey();
    another->installWidevineKey(String16("k"));
    another->deleteWidevineKey();
    another->readAttestationKey();
    another->installAttestationKey(String16("k"));
    another->deleteAttestationKey();
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(AtCfgControl, LogsTheNameOfTheCommandThatFailed) {
    manager->answer(words({-1, 1, 1}));
    EXPECT_EQ(config->readWidevinevKey(), String16());
    EXPECT_FALSE(config->installWidevineKey(String16("k")));
    EXPECT_EQ(config->readAttestationKey(), String16());
    EXPECT_FALSE(config->installAttestationKey(String16("k")));
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_ERROR, kTag, "readWidevinevKey",
                                   "exeCmdSet_Parcel:CMD_AT_CFG_CTRL_READ_WVKEYBOX error!\n"),
                            Logged(TARN_LOG_ERROR, kTag, "installWidevineKey",
                                   "exeCmdSet_Parcel:CMD_AT_CFG_CTRL_INSTALL_WVKEYBOX error!\n"),
                            Logged(TARN_LOG_ERROR, kTag, "readAttestationKey",
                                   "exeCmdSet_Parcel:CMD_AT_CFG_CTRL_READ_ATTESTATIONKEY error!\n"),
                            Logged(TARN_LOG_ERROR, kTag, "installAttestationKey",
                                   "exeCmdSet_Parcel:CMD_AT_CFG_CTRL_INSTALL_ATTESTATIONKEY "
                                   "error!\n")));
}

TEST_F(AtCfgControl, LogsNoOtherFailure) {
    manager->answer(words({-1}));
    config->deleteWidevineKey();
    config->deleteAttestationKey();
    config->setString(key, key);
    config->getString(key);
    config->setInteger(key, 1);
    config->getInteger(key);
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(AtCfgControl, TellsAStoredMinusOneNotFromAFailure) {
    manager->answer(words({0, -1}));
    EXPECT_EQ(config->getInteger(key), -1);
    manager->answer(words({-1, 5}));
    EXPECT_EQ(config->getInteger(key), -1);
    manager->answer(words({-5, 5}));
    EXPECT_EQ(config->getInteger(key), 5);
}

TEST_F(AtCfgControl, GivesAStoredTextAsUtf8) {
    manager->answer(Reply(0).s16("\xC3\xBC \xE2\x82\xAC \xF0\x9F\x98\x80"));
    EXPECT_STREQ(config->getString(key), "\xC3\xBC \xE2\x82\xAC \xF0\x9F\x98\x80");
}

TEST_F(AtCfgControl, GivesAnEmptyTextAndNeverNullOnFailure) {
    for (const Bytes& reply : {words({-1}), words({0}), Bytes()}) {
        manager->answer(reply);
        ASSERT_NE(config->getString(key), nullptr);
        EXPECT_STREQ(config->getString(key), "");
    }
}

TEST_F(AtCfgControl, ForgetsTheFormerTextOnFailure) {
    manager->answer(Reply(0).s16("former"));
    EXPECT_STREQ(config->getString(key), "former");
    manager->answer(words({-1}));
    EXPECT_STREQ(config->getString(key), "");
}

TEST_F(AtCfgControl, ReportsTheStoresFailureAsTrue) {
    manager->answer(words({-1}));
    EXPECT_TRUE(config->setString(key, key));
    EXPECT_TRUE(config->setInteger(key, 1));
    manager->answer(words({0}));
    EXPECT_FALSE(config->setString(key, key));
    EXPECT_FALSE(config->setInteger(key, 1));
}

TEST(AtCfgControlTexts, StayValidWhenAnotherThreadAsks) {
    const sp<android::AtCfgControl> config = new android::AtCfgControl(new EchoingManager);
    char mine[] = "mine";
    const char* text = config->getString(mine);
    std::thread([&config] {
        char other[] = "a text of another thread, longer than what fits in place";
        EXPECT_STREQ(config->getString(other), other);
    }).join();
    EXPECT_STREQ(text, "mine");
}

TEST(AtCfgControlTexts, StayApartWhenThreadsAskAtOnce) {
    const sp<android::AtCfgControl> config = new android::AtCfgControl(new EchoingManager);
    const auto ask = [&config](char letter) {
        for (size_t length = 0; length < 2000; length++) {
            std::string key(length, letter);
            const char* text = config->getString(key.data());
            std::this_thread::yield();
            ASSERT_EQ(text, key);
        }
    };
    std::thread other(ask, 'b');
    ask('a');
    other.join();
}

}  // namespace

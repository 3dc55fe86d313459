#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "modules/AtCfgControl.h"
#include "tests/support/RecordingManager.h"

using android::Parcel;
using android::sp;
using namespace tarn::test;

namespace {

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
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::AtCfgControl> config = new android::AtCfgControl(manager);
    char key[4] = "key";
};

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

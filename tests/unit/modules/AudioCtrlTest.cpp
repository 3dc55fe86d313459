#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/AudioCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::Parcel;
using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

/** Keeps the event that was posted last, and how far the log was then. */
class AudioManager : public RecordingManager {
  public:
    int postEvent(int what, Parcel& data) override {
        linesBefore = log.lines().size();
        event = what;
        eventData = &data;
        return 17;
    }

    LogCapture log;
    size_t linesBefore = 0;
    int event = 0;
    const Parcel* eventData = nullptr;
};

class AudioCtrl : public testing::Test {
  protected:
    sp<AudioManager> manager = new AudioManager;
    sp<android::AudioCtrl> audio = new android::AudioCtrl(manager);
};

TEST_F(AudioCtrl, PostsAnEventUnchangedAndSendsNoCommand) {
    Parcel data;
    EXPECT_EQ(audio->postAudioEvent(0x77, data), 17);
    EXPECT_EQ(manager->event, 0x77);
    EXPECT_EQ(manager->eventData, &data);
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(AudioCtrl, LogsAnEventBeforeItIsPosted) {
    Parcel data;
    audio->postAudioEvent(1, data);
    EXPECT_EQ(manager->linesBefore, 1u);
}

}  // namespace

// A tour of the library on a simulated board: commands with their bytes, then events in order.

#include <binder/Parcel.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/ISystemCtrl.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnCreator.h>
#include <utils/String16.h>
#include <utils/String8.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <string>
#include <vector>

#include "simulator/EmbeddedBoard.h"

using android::ITarnManager;
using android::Parcel;
using android::sp;
using android::hardware::hidl_string;
using android::hardware::Return;
using tarn::simulator::BoardControl;
using tarn::simulator::EmbeddedBoard;
using vendor::zunt::hwtarn::V1_0::IHwTarn;
using vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace {

std::string hex(const hidl_string& bytes) {
    std::string text;
    for (size_t i = 0; i < bytes.size(); i++) {
        if (i > 0 && i % 4 == 0) text += ' ';
        char digits[3];
        snprintf(digits, sizeof(digits), "%02x", static_cast<unsigned char>(bytes.c_str()[i]));
        text += digits;
    }
    return text;
}

/** Stands between the library and the board and shows what passes. */
class Tracer : public IHwTarn {
  public:
    explicit Tracer(const sp<IHwTarn>& board) : mBoard(board) {}

    Return<void> hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) override {
        return mBoard->hwRegisterCallback(callback, pid);
    }

    Return<void> hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) override {
        return mBoard->hwInvoke(request, [&](const hidl_string& reply) {
            printf("    request %s\n    reply   %s\n", hex(request).c_str(), hex(reply).c_str());
            _hidl_cb(reply);
        });
    }

    Return<void> hwPostEvent(int32_t what, const hidl_string& data) override {
        return mBoard->hwPostEvent(what, data);
    }

  private:
    sp<IHwTarn> mBoard;
};

class Listener : public ITarnListener {
  public:
    void notify(unsigned int msgType, int, int, const Parcel* data) override {
        printf("event %u with %zu bytes, first word %d\n", msgType, data->dataSize(),
               data->readInt32());
        std::lock_guard<std::mutex> guard(mLock);
        mTypes.push_back(msgType);
        mChanged.notify_all();
    }

    std::vector<unsigned int> waitFor(size_t count) {
        std::unique_lock<std::mutex> guard(mLock);
        mChanged.wait_for(guard, std::chrono::seconds(10), [&] { return mTypes.size() >= count; });
        return mTypes;
    }

  private:
    std::mutex mLock;
    std::condition_variable mChanged;
    std::vector<unsigned int> mTypes;
};

void sendCommands(ITarnManager* manager) {
    android::ISystemCtrl* system = manager->getSystemCtrl();
    android::IAudioCtrl* audio = manager->getAudioCtrl();

    printf("audio.setVolume 30\n");
    printf("    result  %d\n", audio->setVolume(30));
    printf("audio.getVolume\n");
    printf("    result  %d\n", audio->getVolume());
    printf("audio.setOtgMicState true\n");
    printf("    result  %s\n", audio->setOtgMicState(true) ? "true" : "false");
    printf("audio.getOtgMicState\n");
    printf("    result  %s\n", audio->getOtgMicState() ? "true" : "false");
    printf("system.setSelinuxMode 2\n");
    printf("    result  %d\n", system->setSelinuxMode(static_cast<android::_EnumSelinuxMode_>(2)));
    printf("system.getCPUtemperature\n");
    printf("    result  \"%s\"\n", android::String8(system->getCPUtemperature()).c_str());
}

bool receiveEvents(ITarnManager* manager, BoardControl* board) {
    Listener listener;
    manager->registerListener(&listener);
    if (manager->createTarnMsgManager() != 0) return false;
    for (uint8_t i = 1; i <= 3; i++) board->raiseEvent(100u + i, {i, 0, 0, 0});
    const bool inOrder = listener.waitFor(3) == std::vector<unsigned int>{101, 102, 103};
    manager->unRegisterListener(&listener);
    return inOrder;
}

}  // namespace

int main() try {
    const EmbeddedBoard board = tarn::simulator::loadEmbeddedBoard();
    const sp<Tracer> tracer = new Tracer(board.service);
    if (tracer->registerAsService() != android::OK) return EXIT_FAILURE;

    ITarnManager* manager = android::TarnCreator::create();
    printf("the service is %s\n", manager->isTarnReady() == 0 ? "ready" : "absent");
    sendCommands(manager);
    if (!receiveEvents(manager, board.control.get())) {
        fprintf(stderr, "the events did not arrive in order\n");
        return EXIT_FAILURE;
    }
    if (fflush(stdout) != 0 || ferror(stdout)) {
        fprintf(stderr, "standard output can't be written\n");
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
} catch (const std::exception& error) {
    fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
}

// An application that outlives its board. On a host, in build/bin:
//
//     tarn-board &
//     tarn_recovery
//
// and then end the board and start it again, as often as you like. tarn_recovery MILLISECONDS sends
// a command, and looks after the board, that often; every second without.

#include <binder/Parcel.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnCreator.h>
#include <tarn/TarnRecovery.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

struct Listener : ITarnListener {
    void notify(unsigned int msgType, int, int, const android::Parcel* data) override {
        printf("event 0x%04x, %zu bytes\n", msgType, data->dataSize());
    }
};

struct RecoveryListener : android::ITarnRecoveryListener {
    void serviceLost() override { puts("the board is gone"); }
    void serviceBack() override { puts("the board is back"); }
};

}  // namespace

int main(int argc, char** argv) {
    const unsigned int pauseMs = argc > 1 ? static_cast<unsigned int>(atoi(argv[1])) : 1000;
    setvbuf(stdout, nullptr, _IOLBF, 0);

    android::ITarnManager* manager = android::TarnCreator::create();
    static Listener listener;
    manager->registerListener(&listener);  // once and for all
    static RecoveryListener recoveryListener;
    android::TarnRecovery recovery(manager, android::TarnRecovery::WITH_EVENTS);
    if (recovery.start(&recoveryListener, pauseMs) != 0) return 1;

    android::IAudioCtrl* audio = manager->getAudioCtrl();
    for (int volume = 0;; volume = (volume + 1) % 101) {
        // While the board is gone a command fails, and that is all.
        if (audio->setVolume(volume) != -1) printf("volume %d\n", volume);
        usleep(pauseMs * 1000);
    }
}

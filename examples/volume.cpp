#include <tarn/IAudioCtrl.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnCreator.h>

#include <cstdio>

#include "simulator/EmbeddedBoard.h"  // on a host; a device has a board

class Listener : public ITarnListener {
  public:
    void notify(unsigned int msgType, int, int, const android::Parcel* data) override {
        printf("event %u, %zu bytes\n", msgType, data->dataSize());
    }
};

int main() {
    tarn::simulator::startEmbeddedBoard();
    android::ITarnManager* manager = android::TarnCreator::create();
    static Listener listener;
    manager->registerListener(&listener);
    manager->createTarnMsgManager();

    android::IAudioCtrl* audio = manager->getAudioCtrl();
    if (audio->setVolume(30) == -1) return 1;
    printf("volume %d\n", audio->getVolume());
}

#include <semaphore.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnCreator.h>

#include <cstdio>

#include "simulator/EmbeddedBoard.h"  // on a host; a device has a board

struct Listener : ITarnListener {
    sem_t came;
    void notify(unsigned int msgType, int, int, const android::Parcel* data) override {
        printf("event %u, %zu bytes\n", msgType, data->dataSize());
        sem_post(&came);
    }
};

int main() {
    tarn::simulator::startEmbeddedBoard();
    android::ITarnManager* manager = android::TarnCreator::create();
    static Listener listener;
    sem_init(&listener.came, 0, 0);
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    android::IAudioCtrl* audio = manager->getAudioCtrl();
    if (audio->setVolume(30) == -1) return 1;
    printf("volume %d\n", audio->getVolume());
    sem_wait(&listener.came);  // the event comes on a thread of the library's
}

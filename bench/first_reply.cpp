// An application as small as one can be: its manager, one command, the end.

#include <tarn/IAudioCtrl.h>
#include <tarn/ITarnManager.h>
#include <tarn/TarnCreator.h>

#include <cstdlib>

int main() {
    android::ITarnManager* const manager = android::TarnCreator::create();
    const int volume = manager->getAudioCtrl()->getVolume();
    std::quick_exit(volume == -1 ? 1 : 0);
}

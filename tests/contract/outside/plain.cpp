// An application that brings no board: without a service every command fails.
#include <tarn/IAudioCtrl.h>
#include <tarn/TarnManager.h>

#include <cstdio>

namespace {

/** Derived, as an application may: uses the library's virtual tables and type information. */
class Manager : public android::TarnManager {
  public:
    int invoke(const android::Parcel& request, android::Parcel* reply) override {
        printf("%zu bytes\n", request.dataSize());
        return TarnManager::invoke(request, reply);
    }
};

}  // namespace

int main() {
    // In sight to the end: a manager that handed out a controller is never freed.
    static android::sp<android::ITarnManager> manager = new Manager;
    printf("ready %d\n", manager->isTarnReady());
    printf("volume %d\n", manager->getAudioCtrl()->getVolume());
    return 0;
}

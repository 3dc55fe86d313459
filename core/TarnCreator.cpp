#include <tarn/TarnCreator.h>
#include <tarn/TarnManager.h>

namespace android {

ITarnManager* TarnCreator::mITarnManager = nullptr;
Mutex TarnCreator::mITarnManagerLock;

ITarnManager* TarnCreator::create() {
    AutoMutex guard(mITarnManagerLock);
    if (mITarnManager == nullptr) mITarnManager = new TarnManager;
    return mITarnManager;
}

}  // namespace android

#include <tarn/IEasyTouch.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerEasyTouch(std::vector<Controller>* registry) {
    Builder<IEasyTouch> builder(registry, "easyTouch", "EasyTouch", &ITarnManager::getEasyTouch);
    METHOD(getEasyTouchLogInfo, CMD_EASY_TOUCH_GET_LOG_INFO);
}

}  // namespace tarn::registry

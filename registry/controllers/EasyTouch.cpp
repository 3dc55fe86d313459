#include <tarn/IEasyTouch.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerEasyTouch(std::vector<Controller>* registry) {
    Builder<IEasyTouch>(registry, "easyTouch", "EasyTouch", &ITarnManager::getEasyTouch)
            .method("getEasyTouchLogInfo", Row::CMD_EASY_TOUCH_GET_LOG_INFO,
                    &IEasyTouch::getEasyTouchLogInfo);
}

}  // namespace tarn::registry

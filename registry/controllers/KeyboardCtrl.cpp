#include <tarn/IKeyboardCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerKeyboardCtrl(std::vector<Controller>* registry) {
    Builder<IKeyboardCtrl> builder(registry, "keyboard", "KeyboardCtrl",
                                   &ITarnManager::getKeyboardCtrl);
    METHOD(getKeyboardByName, CMD_KEYBOARD_GET_BY_NAME);
    METHOD(getKeyboardByID, CMD_KEYBOARD_GET_BY_ID);
}

}  // namespace tarn::registry

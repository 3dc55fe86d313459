#include <tarn/IKeyboardCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerKeyboardCtrl(std::vector<Controller>* registry) {
    Builder<IKeyboardCtrl>(registry, "keyboard", "KeyboardCtrl", &ITarnManager::getKeyboardCtrl)
            .method("getKeyboardByName", Row::CMD_KEYBOARD_GET_BY_NAME,
                    &IKeyboardCtrl::getKeyboardByName, "name")
            .method("getKeyboardByID", Row::CMD_KEYBOARD_GET_BY_ID, &IKeyboardCtrl::getKeyboardByID,
                    "id0, id1");
}

}  // namespace tarn::registry

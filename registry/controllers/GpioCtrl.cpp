#include <tarn/IGpioCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerGpioCtrl(std::vector<Controller>* registry) {
    Builder<IGpioCtrl>(registry, "gpio", "GpioCtrl", &ITarnManager::getGpioCtrl)
            .method("setGpioDirInput", Row::CMD_GPIO_SET_DIR_INPUT, &IGpioCtrl::setGpioDirInput,
                    "gpio")
            .method("setGpioDirOutput", Row::CMD_GPIO_SET_DIR_OUTPUT, &IGpioCtrl::setGpioDirOutput,
                    "gpio")
            .adapted(
                    "getGpioDirBit", Row::CMD_GPIO_GET_DIR_BIT, &IGpioCtrl::getGpioDirBit,
                    [](IGpioCtrl& pins, unsigned int gpio) {
                        TARN_BOOL dir = 0;
                        const int result = pins.getGpioDirBit(gpio, &dir);
                        return fields({{"result", result}, {"dir", dir}});
                    },
                    "gpio")
            .method("writeGpioBit", Row::CMD_GPIO_WRITE_BIT, &IGpioCtrl::writeGpioBit,
                    "gpio, value")
            .adapted(
                    "readGpioBit", Row::CMD_GPIO_READ_BIT, &IGpioCtrl::readGpioBit,
                    [](IGpioCtrl& pins, unsigned int gpio) {
                        TARN_BOOL value = 0;
                        const int result = pins.readGpioBit(gpio, &value);
                        return fields({{"result", result}, {"value", value}});
                    },
                    "gpio")
            .adapted(
                    "readGpioOutBit", Row::CMD_GPIO_READ_OUT_BIT, &IGpioCtrl::readGpioOutBit,
                    [](IGpioCtrl& pins, unsigned int gpio) {
                        TARN_BOOL value = 0;
                        const int result = pins.readGpioOutBit(gpio, &value);
                        return fields({{"result", result}, {"value", value}});
                    },
                    "gpio");
}

}  // namespace tarn::registry

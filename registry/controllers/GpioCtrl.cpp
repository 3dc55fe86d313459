#include <tarn/IGpioCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerGpioCtrl(std::vector<Controller>* registry) {
    Builder<IGpioCtrl> builder(registry, "gpio", "GpioCtrl", &ITarnManager::getGpioCtrl);
    METHOD(setGpioDirInput, CMD_GPIO_SET_DIR_INPUT);
    METHOD(setGpioDirOutput, CMD_GPIO_SET_DIR_OUTPUT);
    builder.adapted(
            "getGpioDirBit", Row::CMD_GPIO_GET_DIR_BIT, &IGpioCtrl::getGpioDirBit,
            +[](IGpioCtrl& pins, unsigned int gpio) {
                TARN_BOOL dir = 0;
                const int result = pins.getGpioDirBit(gpio, &dir);
                return record().field("result", result).field("dir", dir);
            },
            "gpio");
    METHOD(writeGpioBit, CMD_GPIO_WRITE_BIT);
    builder.adapted(
            "readGpioBit", Row::CMD_GPIO_READ_BIT, &IGpioCtrl::readGpioBit,
            +[](IGpioCtrl& pins, unsigned int gpio) {
                TARN_BOOL value = 0;
                const int result = pins.readGpioBit(gpio, &value);
                return record().field("result", result).field("value", value);
            },
            "gpio");
    builder.adapted(
            "readGpioOutBit", Row::CMD_GPIO_READ_OUT_BIT, &IGpioCtrl::readGpioOutBit,
            +[](IGpioCtrl& pins, unsigned int gpio) {
                TARN_BOOL value = 0;
                const int result = pins.readGpioOutBit(gpio, &value);
                return record().field("result", result).field("value", value);
            },
            "gpio");
}

}  // namespace tarn::registry

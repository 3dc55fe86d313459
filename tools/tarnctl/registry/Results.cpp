#include "tools/tarnctl/registry/Results.h"

#include <utils/String8.h>

namespace tarnctl {

std::string toUtf8(const android::String16& text) {
    const android::String8 utf8(text);
    return std::string(utf8.c_str(), utf8.size());
}

}  // namespace tarnctl

#include "tools/tarnctl/session/TimeLimit.h"

#include <cstdio>

namespace tarnctl {

std::string TimeLimit::exceeded(const std::string& what) const {
    char seconds[32];
    snprintf(seconds, sizeof(seconds), "%g", static_cast<double>(mLimit->count()) / 1000);
    return what + " within " + seconds + " s";
}

}  // namespace tarnctl

#pragma once

#include <utils/String16.h>

namespace android::host {

/** Takes a service out of this process's table again; false if it is not there. For tests. */
bool removeService(const String16& name);

/** Takes all services out of this process's table. For tests. */
void removeAllServices();

}  // namespace android::host

#pragma once

#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

namespace tarn::test {

/**
 * Takes a service that was published as "default" out of the service manager again. Of two
 * implementations, one for a Linux host and one for the device, a build takes one.
 */
void withdrawDefault(const ::android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarn>& service);

}  // namespace tarn::test

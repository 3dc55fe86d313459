#pragma once

#include <binder/IBinder.h>
#include <utils/Errors.h>
#include <utils/String16.h>

#include <functional>
#include <string>

namespace android::host {

/**
 * As the service manager's addService(), but other processes cannot find the service. In this
 * process it comes before another process's service of the same name.
 */
status_t addLocalService(const String16& name, const sp<IBinder>& service);

/**
 * Has lost called each time that other processes no longer reach a service of this one, on a thread
 * of its pool and with no lock held: another process has taken over the name, under which a look-up
 * then finds that one, or the bus is lost. One at a time; it stays for the process's life.
 */
void onServiceLost(std::function<void(const String16& name)> lost);

/** The bus name by which other processes find a service; empty if no bus can hold its name. */
std::string busNameOfService(const String16& name);

/** Takes a service out of this process's table again; false if it is not there. For tests. */
bool removeService(const String16& name);

/** Takes all services out of this process's table. For tests. */
void removeAllServices();

}  // namespace android::host

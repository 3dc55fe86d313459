#pragma once

#include <string>

namespace android::host {

/** Notes that the process serves binder: it has started its pool, or a thread has joined. */
void noteServing();

/**
 * Logs, once in the life of a process, that something needs a thread which serves binder while the
 * process has none. Nothing is started: that is the process's to do, as on a device.
 * @param what what needs the thread, such as "Service 'x' is published"
 */
void warnIfUnserved(const std::string& what);

}  // namespace android::host

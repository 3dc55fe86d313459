#pragma once

namespace android::host {

/** Says whether the process wants a pool; it does until it sets the maximum of threads to 0. */
void setPoolWanted(bool wanted);

/** Starts the pool's threads if they are not running, unless the process wants none. */
void startPoolForCalls();

}  // namespace android::host

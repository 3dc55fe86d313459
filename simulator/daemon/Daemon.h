#pragma once

#include "simulator/daemon/DaemonOptions.h"

namespace tarn::simulator {

enum DaemonExit : int {
    kEnded = 0,          // by a signal, or by another that took over
    kNotPublished = 1,   // the platform refuses it
    kUnusable = 2,       // the command line or the board's description
    kAlreadyServed = 3,  // somebody serves or starts already, or took over one half alone
    kNoBus = 4,          // no session bus, it refuses the board or went away, or no resources
};

/** Serves a board until it is told to end; failures are reported on standard error. */
int runDaemon(const DaemonOptions& options);

}  // namespace tarn::simulator

#include <cstdio>
#include <cstdlib>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include "simulator/daemon/Daemon.h"

int main(int argc, char** argv) {
    using namespace tarn::simulator;

    int code = kEnded;
    try {
        const DaemonOptions options = parseDaemonOptions(argc, argv);
        if (options.help) {
            fputs(kDaemonHelp, stdout);
        } else if (options.version) {
            puts("tarn-board " TARN_BOARD_VERSION);
        } else {
            code = runDaemon(options);
        }
    } catch (const BadUsage& error) {
        fprintf(stderr, "tarn-board: %s\n", error.what());
        code = kUnusable;
    }
    fflush(stdout);
#ifdef __SANITIZE_ADDRESS__
    // quick_exit() leaves out the check that would run at exit.
    __lsan_do_leak_check();
#endif
    // Commands may still be running: nothing that they use may be destroyed.
    std::quick_exit(code);
}

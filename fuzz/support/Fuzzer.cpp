// What all fuzzers share: surroundings of their own, and no log.

#include <android/log.h>
#include <stdlib.h>

#include <cstdio>
#include <string>

#include "fuzz/support/Check.h"
#include "fuzz/support/Folder.h"

namespace {

// Neither the user's bus nor the user's board and properties.
void leaveSurroundings() {
    using tarn::fuzz::temporaryFolder;
    setenv("DBUS_SESSION_BUS_ADDRESS", "", 1);
    setenv("XDG_RUNTIME_DIR", "", 1);
    setenv("TARN_BOARD", "", 1);
    setenv("TARN_PROPERTIES_FILE", (temporaryFolder() + "/of-the-process").c_str(), 1);
}

}  // namespace

namespace tarn::fuzz {

void check(bool holds, const char* what) {
    if (holds) return;
    fprintf(stderr, "not as it must be: %s\n", what);
    abort();
}

}  // namespace tarn::fuzz

extern "C" {

int LLVMFuzzerInitialize(int* argc, char*** argv);

int LLVMFuzzerInitialize(int*, char***) {
    leaveSurroundings();
    return 0;
}

// In the place of liblog's, for everything in the process.

int __android_log_print(int, const char*, const char*, ...) {
    return 0;
}

int __android_log_write(int, const char*, const char*) {
    return 0;
}
}

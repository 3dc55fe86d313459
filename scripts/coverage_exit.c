// Preloaded by scripts/coverage, so that programs which leave by quick_exit() write their counts too.

#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

// In a child, which has no other thread: nothing that another one uses is destroyed.
void quick_exit(int code) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(10);
        exit(code);
    }
    if (child > 0) waitpid(child, NULL, 0);
    _exit(code);
}

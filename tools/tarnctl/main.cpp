#include <cstdlib>
#include <iostream>

#include "tools/tarnctl/Run.h"

int main(int argc, char** argv) {
    const int code = tarnctl::run(std::vector<std::string>(argv + 1, argv + argc),
                                  tarnctl::Streams{std::cin, std::cout, std::cerr});
    // The library's event thread never ends: no destructor may run underneath it.
    std::quick_exit(code);
}

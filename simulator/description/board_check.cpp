#include <cstdio>
#include <cstring>
#include <string>

#include "simulator/BoardFiles.h"
#include "simulator/description/BoardLoader.h"

namespace {

constexpr char kUsage[] =
        "usage: board_check [BOARD [OVERRIDE]]\n"
        "Loads a board and tells everything that is wrong with it. Without BOARD it is the file\n"
        "that TARN_BOARD names, else the default board.\n";

int check(const std::string& path, const std::string& overridePath) {
    using namespace tarn::simulator;
    try {
        const auto model = loadBoard(path, overridePath);
        printf("%s: %zu properties, %zu commands\n", path.c_str(), model->properties.size(),
               model->commands.size());
        return 0;
    } catch (const BoardFileError& e) {
        const size_t count = e.problems().size();
        fprintf(stderr, "%s\n%zu problem%s\n", e.what(), count, count == 1 ? "" : "s");
        return 1;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && (strcmp(argv[1], "-h") == 0 || strcmp(argv[1], "--help") == 0)) {
        fputs(kUsage, stdout);
        return 0;
    }
    if (argc > 3 || (argc > 1 && argv[1][0] == '-')) {
        fputs(kUsage, stderr);
        return 2;
    }
    return check(argc > 1 ? argv[1] : tarn::simulator::defaultBoardPath(), argc > 2 ? argv[2] : "");
}

// Loads a board and tells everything that is wrong with it: board_check [BOARD [OVERRIDE]]

#include <cstdio>
#include <string>

#include "simulator/BoardLoader.h"
#include "simulator/EmbeddedBoard.h"

int main(int argc, char** argv) {
    using namespace tarn::simulator;

    const std::string path = argc > 1 ? argv[1] : defaultBoardPath();
    try {
        const auto model = loadBoard(path, argc > 2 ? argv[2] : "");
        printf("%s: %zu properties, %zu commands\n", path.c_str(), model->properties.size(),
               model->commands.size());
        return 0;
    } catch (const BoardFileError& e) {
        fprintf(stderr, "%s\n%zu problems\n", e.what(), e.problems().size());
        return 1;
    }
}

#include "fuzz/support/Folder.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "fuzz/support/Check.h"

namespace tarn::fuzz {

namespace {

namespace fs = std::filesystem;

/** In memory where that is possible: a file is written for every input. */
std::string makeFolder() {
    std::error_code none;
    std::string path = fs::is_directory("/dev/shm", none) ? "/dev/shm" : "/tmp";
    path += "/tarn-fuzz-XXXXXX";
    check(mkdtemp(path.data()) != nullptr, "there is no temporary folder");
    return path;
}

void removeFolder() {
    std::error_code ignored;
    fs::remove_all(temporaryFolder(), ignored);
}

}  // namespace

const std::string& temporaryFolder() {
    static const auto* folder = [] {
        atexit(removeFolder);
        return new std::string(makeFolder());
    }();
    return *folder;
}

std::string writeFile(const std::string& name, const std::string& contents) {
    const std::string path = temporaryFolder() + "/" + name;
    std::ofstream(path, std::ios::binary | std::ios::trunc) << contents;
    return path;
}

}  // namespace tarn::fuzz

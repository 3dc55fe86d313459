// Makes the seeds of the fuzzer `methods`: of each controller's frozen bytes a file with all its
// calls and the replies to them. Usage: fuzz_wire_seeds FOLDER-OF-WIRE-FILES FOLDER

#include <cstdio>
#include <exception>
#include <fstream>
#include <string>

#include "fuzz/MethodInput.h"
#include "registry/Registry.h"
#include "tests/wire/WireFile.h"

namespace tarn::fuzz {

namespace {

using registry::Controller;
using registry::Method;

const Method* find(const Controller& controller, const test::WireCase& wireCase) {
    for (const Method* method : registry::findMethods(controller, wireCase.method)) {
        if (method->arguments.size() == wireCase.arguments.size()) return method;
    }
    return nullptr;
}

/** One case of each method: that of its longest reply. */
Bytes seedOf(const Controller& controller, const test::WireFile& file) {
    Bytes seed;
    for (const Method& method : controller.methods) {
        const test::WireCase* longest = nullptr;
        size_t length = 0;
        for (const test::WireCase& wireCase : file.cases) {
            if (find(controller, wireCase) != &method || wireCase.commands.empty()) continue;
            const size_t size = wireCase.commands.back().reply.size();
            if (longest != nullptr && size <= length) continue;
            longest = &wireCase;
            length = size;
        }
        if (longest == nullptr) continue;
        writeCall(controller, {&method, method.read(longest->arguments)}, &seed);
        for (const test::WireCommand& command : longest->commands) {
            writeReply(command.reply, &seed);
        }
    }
    return seed;
}

}  // namespace

}  // namespace tarn::fuzz

int main(int argc, char** argv) try {
    if (argc != 3) return 2;
    for (const tarn::registry::Controller& controller : tarn::registry::controllers()) {
        const tarn::fuzz::Bytes seed = tarn::fuzz::seedOf(
                controller, tarn::test::readWireFile(std::string(argv[1]) + "/" +
                                                     controller.className + ".wire"));
        std::ofstream file(std::string(argv[2]) + "/" + controller.className, std::ios::binary);
        file.write(reinterpret_cast<const char*>(seed.data()),
                   static_cast<std::streamsize>(seed.size()));
    }
    return 0;
} catch (const std::exception& error) {
    fprintf(stderr, "fuzz_wire_seeds: %s\n", error.what());
    return 1;
}

#pragma once

#include <json/value.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/wire/ExpectedLine.h"

namespace tarn::test {

/** One command of a case: what must be sent, and what the service answers. */
struct WireCommand {
    std::vector<uint8_t> request;
    std::vector<uint8_t> reply;
};

/** A call, its commands, its result and what it logs. */
struct WireCase {
    int line;
    std::string method;
    std::vector<std::string> arguments;
    std::vector<WireCommand> commands;
    Json::Value result;
    std::vector<ExpectedLine> log;
};

/** What stands in a file of frozen bytes. */
struct WireFile {
    std::vector<ExpectedLine> logOfCreation;
    std::vector<WireCase> cases;
};

/** Reads such a file; see README.md. Throws std::runtime_error with file and line. */
WireFile readWireFile(const std::string& path);

}  // namespace tarn::test

#pragma once

#include <json/value.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tarn::test {

/** One command of a case: what must be sent, and what the service answers. */
struct Exchange {
    std::vector<uint8_t> request;
    std::vector<uint8_t> reply;
};

/** A call, its exchanges and its result. */
struct WireCase {
    int line;
    std::string method;
    std::vector<std::string> arguments;
    std::vector<Exchange> exchanges;
    Json::Value result;
};

/** Reads a file of frozen bytes; see README.md. Throws std::runtime_error with file and line. */
std::vector<WireCase> readWireFile(const std::string& path);

}  // namespace tarn::test

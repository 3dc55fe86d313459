#pragma once

#include <set>
#include <string>
#include <vector>

#include "registry/Registry.h"
#include "tests/wire/WireFile.h"

namespace tarn::test {

/** What the cases of one controller's file showed. */
struct ReplayReport {
    std::string controller;
    size_t methods = 0;  // of the interface
    size_t covered = 0;  // with every kind of case that they need
    size_t cases = 0;
    std::vector<std::string> failures;
    std::set<int32_t> codesSent;
};

/** Runs the cases of DIRECTORY/<Class>.wire and checks that they cover the controller. */
ReplayReport replay(const registry::Controller& controller, const std::string& directory);

}  // namespace tarn::test

#pragma once

#include <json/value.h>

#include <string>
#include <vector>

#include "protocol/Catalog.h"
#include "registry/Registry.h"

namespace tarnctl {

using ::tarn::registry::Controller;
using ::tarn::registry::Method;

/** A method and what it sends: {"method", "arguments", "result", "commands"}. */
Json::Value describeMethod(const Controller& controller, const Method& method);

/** The same for people: the signature, and what it sends. */
std::vector<std::string> methodLines(const Controller& controller, const Method& method);

/** A command: {"command", "code", "controller", "request", "reply", "methods"}. */
Json::Value describeCommand(const ::tarn::protocol::Command& command);

std::vector<std::string> commandLines(const ::tarn::protocol::Command& command);

}  // namespace tarnctl

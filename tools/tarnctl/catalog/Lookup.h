#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "protocol/Catalog.h"
#include "registry/Registry.h"

namespace tarnctl {

using ::tarn::registry::Argument;
using ::tarn::registry::Controller;
using ::tarn::registry::controllers;
using ::tarn::registry::findController;
using ::tarn::registry::findMethods;
using ::tarn::registry::Method;

// Finding things by what a person types. Each throws Failure: kNoSuchName, with names that may have
// been meant, or kBadUsage.

const Controller& requireController(const std::string& name);

/** A method by its name, with its overloads. */
struct Overloads {
    const Controller* controller;
    std::vector<const Method*> methods;
};

/** The methods of "audio.setVolume". */
Overloads requireMethods(const std::string& path);

/** "; did you mean audio.setVolume?" for a method's name without its controller, or nothing. */
std::string suggestPaths(const std::string& method);

/** The overload that takes so many arguments. */
const Method& requireOverload(const Overloads& overloads, size_t argumentCount);

/** The rows of a command by its name, or by its code in decimal or hexadecimal. */
std::vector<const ::tarn::protocol::Command*> requireCommands(const std::string& nameOrCode);

/** As requireCommands, for a code that need not be known. */
int32_t requireCode(const std::string& nameOrCode);

/** Whether this is a command's name or code rather than a controller's or a method's name. */
bool looksLikeCommand(const std::string& text);

/** The methods that send a command, as "audio.setVolume". */
std::vector<std::string> methodsOf(const ::tarn::protocol::Command& command);

/** "audio.setVolume" */
std::string pathOf(const Controller& controller, const Method& method);

/** "audio.setVolume(volume: int) -> int" */
std::string signatureOf(const Controller& controller, const Method& method);

/** Every "controller.method". */
std::vector<std::string> allPaths();

std::vector<std::string> controllerNames();
std::vector<std::string> commandNames();

}  // namespace tarnctl

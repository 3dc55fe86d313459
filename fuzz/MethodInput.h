#pragma once

#include <vector>

#include "fuzz/support/Input.h"
#include "registry/Registry.h"

namespace tarn::fuzz {

/** A method with a value for each of its arguments. */
struct MethodCall {
    const registry::Method* method;
    std::vector<registry::ArgumentValue> arguments;
};

/**
 * Reads a call: controller and method by their places, a byte each, then the arguments. What the
 * service answers to each of the call's commands follows in the input.
 */
MethodCall readCall(Input* input);

/** Appends what readCall() reads. */
void writeCall(const registry::Controller& controller, const MethodCall& call, Bytes* input);

/** Appends one answer of the service, which Input::longBytes() reads. */
void writeReply(const Bytes& reply, Bytes* input);

}  // namespace tarn::fuzz

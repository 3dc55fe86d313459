#pragma once

#include <cstring>

#include "registry/ArgumentValue.h"

namespace android {
class ITarnManager;
}

namespace tarn::registry {

struct ParameterType;

class Answer;

/** A function or member pointer whose type only those who call through it know. */
class AnyPointer {
  public:
    AnyPointer() = default;

    template <typename Pointer>
    explicit AnyPointer(Pointer pointer) {
        static_assert(sizeof(pointer) <= sizeof(mBytes));
        memcpy(mBytes, &pointer, sizeof(pointer));
    }

    /** Pointer must be the very type that it was made of. */
    template <typename Pointer>
    Pointer as() const {
        Pointer pointer;
        memcpy(&pointer, mBytes, sizeof(pointer));
        return pointer;
    }

  private:
    class Any;
    unsigned char mBytes[sizeof(void(Any::*)())] = {};
};

/** A controller's accessor, its method, and what calls the method in its stead if any. */
struct Target {
    AnyPointer accessor;
    AnyPointer method;
    AnyPointer adapter;
};

/** What the methods of one interface with the same parameters and result have in common. */
struct Signature {
    Answer (*invoke)(const Target& target, android::ITarnManager* manager, ArgumentValue* values);
    const ParameterType* const* parameters;  // a null pointer ends them
    Kind result;
    const char* resultWords;  // of a list, those of an element
};

}  // namespace tarn::registry

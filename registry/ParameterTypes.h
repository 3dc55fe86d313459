#pragma once

#include <utils/String16.h>

#include <string>
#include <type_traits>
#include <vector>

#include "registry/ArgumentValue.h"

namespace tarn::registry {

/** How a parameter's argument is described and read. */
struct ParameterType {
    Kind kind;
    const char* words;  // for people: "int", "bool", "text", ...

    /** Reads a text; throws BadArgument, which names the argument. */
    void (*read)(const std::string& name, const std::string& text, ArgumentValue* value);
};

extern const ParameterType kIntParameter;
extern const ParameterType kUnsignedParameter;
extern const ParameterType kBoolParameter;
extern const ParameterType kFloatParameter;
extern const ParameterType kTextParameter;
extern const ParameterType kBytesParameter;
extern const ParameterType kIntsParameter;
extern const ParameterType kTextsParameter;

/**
 * What a parameter of type T takes: kType, and from() for the value as a T. Records that a
 * controller takes specialise it next to that controller.
 */
template <typename T, typename Enable = void>
struct Parameter;

template <>
struct Parameter<int> {
    static constexpr const ParameterType* kType = &kIntParameter;
    static int from(const ArgumentValue& value) { return static_cast<int>(value.number); }
};

template <>
struct Parameter<unsigned int> {
    static constexpr const ParameterType* kType = &kUnsignedParameter;
    static unsigned int from(const ArgumentValue& value) {
        return static_cast<unsigned int>(value.number);
    }
};

template <>
struct Parameter<bool> {
    static constexpr const ParameterType* kType = &kBoolParameter;
    static bool from(const ArgumentValue& value) { return value.flag; }
};

template <>
struct Parameter<float> {
    static constexpr const ParameterType* kType = &kFloatParameter;
    static float from(const ArgumentValue& value) { return value.real; }
};

template <>
struct Parameter<std::string> {
    static constexpr const ParameterType* kType = &kTextParameter;
    static const std::string& from(const ArgumentValue& value) { return value.text; }
};

template <>
struct Parameter<android::String16> {
    static constexpr const ParameterType* kType = &kTextParameter;
    static android::String16 from(const ArgumentValue& value);
};

template <>
struct Parameter<const char*> {
    static constexpr const ParameterType* kType = &kTextParameter;
    static const char* from(const ArgumentValue& value) { return value.text.c_str(); }
};

/** The library does not write to such texts. */
template <>
struct Parameter<char*> {
    static constexpr const ParameterType* kType = &kTextParameter;
    static char* from(ArgumentValue& value) { return value.text.data(); }
};

template <>
struct Parameter<std::vector<uint8_t>> {
    static constexpr const ParameterType* kType = &kBytesParameter;
    static const std::vector<uint8_t>& from(const ArgumentValue& value) { return value.bytes; }
};

template <>
struct Parameter<std::vector<int>> {
    static constexpr const ParameterType* kType = &kIntsParameter;
    static std::vector<int>& from(ArgumentValue& value) { return value.numbers; }
};

template <>
struct Parameter<std::vector<std::string>> {
    static constexpr const ParameterType* kType = &kTextsParameter;
    static const std::vector<std::string>& from(const ArgumentValue& value) { return value.texts; }
};

template <typename T>
struct Parameter<T, std::enable_if_t<std::is_enum_v<T>>> {
    static constexpr const ParameterType* kType = &kIntParameter;
    static T from(const ArgumentValue& value) { return static_cast<T>(value.number); }
};

template <typename T>
struct Parameter<std::vector<T>, std::enable_if_t<std::is_enum_v<T>>> {
    static constexpr const ParameterType* kType = &kIntsParameter;
    static std::vector<T> from(const ArgumentValue& value) {
        std::vector<T> list;
        for (const int32_t number : value.numbers) list.push_back(static_cast<T>(number));
        return list;
    }
};

}  // namespace tarn::registry

#pragma once

#include <utils/String16.h>

#include <string>
#include <type_traits>
#include <vector>

#include "registry/Value.h"

namespace Json {
class Value;
}

namespace tarn::registry {

struct Answer;

/**
 * What a result of type T is: kKind, kWords for people, and write(), which puts one into the
 * answer. Controllers that return records or lists include Results.h.
 */
template <typename T, typename Enable = void>
struct ResultType;

/** For the types that Results.cpp names. */
template <typename T>
struct SimpleResult {
    static Json::Value toJson(const T& value);
    static void write(const T& value, Answer* answer);
};

template <>
struct ResultType<int> : SimpleResult<int> {
    static constexpr Kind kKind = Kind::kInt;
    static constexpr const char* kWords = "int";
};

template <>
struct ResultType<bool> : SimpleResult<bool> {
    static constexpr Kind kKind = Kind::kBool;
    static constexpr const char* kWords = "bool";
};

template <>
struct ResultType<float> : SimpleResult<float> {
    static constexpr Kind kKind = Kind::kFloat;
    static constexpr const char* kWords = "float";
};

template <>
struct ResultType<std::string> : SimpleResult<std::string> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
};

/** No text is null. */
template <>
struct ResultType<char*> : SimpleResult<char*> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
};

template <>
struct ResultType<android::String16> : SimpleResult<android::String16> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
};

/** A result that an adapted method has put together itself. */
template <>
struct ResultType<Json::Value> : SimpleResult<Json::Value> {
    static constexpr Kind kKind = Kind::kRecord;
    static constexpr const char* kWords = "record";
};

template <typename T>
struct ResultType<T, std::enable_if_t<std::is_enum_v<T>>> {
    static constexpr Kind kKind = Kind::kInt;
    static constexpr const char* kWords = "int";
    static Json::Value toJson(T value);
    static void write(T value, Answer* answer) {
        SimpleResult<int>::write(static_cast<int>(value), answer);
    }
};

template <typename T>
struct ResultType<std::vector<T>> {
    static constexpr Kind kKind = ResultType<T>::kKind == Kind::kInt    ? Kind::kInts
                                  : ResultType<T>::kKind == Kind::kText ? Kind::kTexts
                                                                        : Kind::kRecords;
    static constexpr const char* kWords = ResultType<T>::kWords;
    static Json::Value toJson(const std::vector<T>& list);
    static void write(const std::vector<T>& list, Answer* answer);
};

}  // namespace tarn::registry

#pragma once

#include <utils/String16.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "registry/Answer.h"
#include "registry/ArgumentValue.h"

namespace tarn::registry {

/**
 * What a result of type T is: kKind, kWords for people, and answer() for the value. Records
 * specialise it next to their controller:
 *
 *     template <>
 *     struct ResultType<android::SoundScreenAngle> : RecordResult {
 *         static constexpr const char* kWords = "angles";
 *         static Answer answer(const android::SoundScreenAngle& angle) {
 *             return record().field("first", angle.first).field("second", angle.second);
 *         }
 *     };
 */
template <typename T, typename Enable>
struct ResultType;

template <>
struct ResultType<int> {
    static constexpr Kind kKind = Kind::kInt;
    static constexpr const char* kWords = "int";
    static Answer answer(int value) { return Answer(value); }
};

template <>
struct ResultType<int16_t> {
    static constexpr Kind kKind = Kind::kInt;
    static constexpr const char* kWords = "int";
    static Answer answer(int16_t value) { return Answer(int{value}); }
};

template <>
struct ResultType<bool> {
    static constexpr Kind kKind = Kind::kBool;
    static constexpr const char* kWords = "bool";
    static Answer answer(bool value) { return Answer(value); }
};

template <>
struct ResultType<float> {
    static constexpr Kind kKind = Kind::kFloat;
    static constexpr const char* kWords = "float";
    static Answer answer(float value) { return Answer(value); }
};

template <>
struct ResultType<std::string> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
    static Answer answer(const std::string& value) { return Answer(value); }
};

template <>
struct ResultType<char*> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
    static Answer answer(const char* value) { return Answer(value); }
};

/** A text in a record. */
template <size_t kSize>
struct ResultType<char[kSize]> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
    static Answer answer(const char* value) { return Answer(value); }
};

template <>
struct ResultType<android::String16> {
    static constexpr Kind kKind = Kind::kText;
    static constexpr const char* kWords = "text";
    static Answer answer(const android::String16& value) { return Answer(value); }
};

struct RecordResult {
    static constexpr Kind kKind = Kind::kRecord;
};

/** A record that an adapted method has put together itself. */
template <>
struct ResultType<Answer> : RecordResult {
    static constexpr const char* kWords = "record";
    static Answer answer(Answer&& value) { return std::move(value); }
};

template <typename T>
struct ResultType<T, std::enable_if_t<std::is_enum_v<T>>> {
    static constexpr Kind kKind = Kind::kInt;
    static constexpr const char* kWords = "int";
    static Answer answer(T value) { return Answer(static_cast<int>(value)); }
};

template <typename T>
struct ResultType<std::vector<T>> {
    static constexpr Kind kKind = ResultType<T>::kKind == Kind::kInt    ? Kind::kInts
                                  : ResultType<T>::kKind == Kind::kText ? Kind::kTexts
                                                                        : Kind::kRecords;
    static constexpr const char* kWords = ResultType<T>::kWords;
    static Answer answer(const std::vector<T>& list) {
        Answer answer = Answer::emptyList();
        for (const T& element : list) answer.append(ResultType<T>::answer(element));
        return answer;
    }
};

}  // namespace tarn::registry

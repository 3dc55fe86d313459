#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarn::registry {

/** What an argument or a result holds. */
enum class Kind {
    kInt,       // within int32; enumerations too
    kUnsigned,  // within uint32
    kBool,
    kFloat,
    kText,
    kBytes,
    kInts,
    kTexts,
    kRecord,   // results only: an object of named fields
    kRecords,  // results only
};

/** An argument's value: the member that belongs to its kind. */
struct ArgumentValue {
    int64_t number = 0;  // kInt, kUnsigned
    bool flag = false;
    float real = 0;
    std::string text;  // in UTF-8
    std::vector<uint8_t> bytes;
    std::vector<int32_t> numbers;
    std::vector<std::string> texts;
};

}  // namespace tarn::registry

#pragma once

#include <string>
#include <vector>

namespace tarn::protocol {

/** What one word of a layout stands for on the wire. */
enum class Type {
    kInt32,     // "i32"
    kBool,      // "bool": an int32, 0 or 1
    kString16,  // "s16"
    kFloat,     // "f32"
    kBytes,     // "bytes": an int32 length, then the bytes
    kList,      // "[...]": an int32 count, then that many records
};

/** One named field; a list has the fields of its records. */
struct Field {
    Type type;
    std::string name;
    std::vector<Field> record;
};

using Layout = std::vector<Field>;

/**
 * Reads a layout as the rows write it, for example "i32 band, [s16 name, bool on] presets".
 * Throws std::invalid_argument that names the text and what is wrong in it.
 */
Layout parseLayout(const std::string& text);

/** The word that a layout uses for a type: "i32", "bool", ... */
const char* typeWord(Type type);

}  // namespace tarn::protocol

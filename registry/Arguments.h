#pragma once

#include <binder/Parcel.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace tarn::registry {

// Reading one argument of the command line. Each function throws BadArgument, which names the
// argument, quotes the text and tells what is accepted.

/** Decimal within int32; or 0x hexadecimal, which may be a negative number's word: 0xffffffff is
 * -1. */
int32_t parseInt(const std::string& name, const std::string& text);

/** As parseInt, within uint32. */
uint32_t parseUnsigned(const std::string& name, const std::string& text);

/** true/false, on/off, yes/no, 1/0. */
bool parseBool(const std::string& name, const std::string& text);

float parseFloat(const std::string& name, const std::string& text);

/** The text, if it is UTF-8: the library's texts can't hold anything else. */
std::string parseText(const std::string& name, const std::string& text);

/** Pairs of hexadecimal digits; blanks between them are ignored. */
std::vector<uint8_t> parseBytes(const std::string& name, const std::string& text);

/** The parts between commas; an empty text is an empty list. */
std::vector<std::string> splitList(const std::string& text);

/**
 * How a parameter of type T is read: kType for people, parse() for the value. Records that a
 * controller takes specialise it next to that controller.
 */
template <typename T, typename Enable = void>
struct ArgumentReader;

template <>
struct ArgumentReader<int> {
    static constexpr const char* kType = "int";
    static int parse(const std::string& name, const std::string& text) {
        return parseInt(name, text);
    }
};

template <>
struct ArgumentReader<unsigned int> {
    static constexpr const char* kType = "unsigned";
    static unsigned int parse(const std::string& name, const std::string& text) {
        return parseUnsigned(name, text);
    }
};

template <>
struct ArgumentReader<bool> {
    static constexpr const char* kType = "bool";
    static bool parse(const std::string& name, const std::string& text) {
        return parseBool(name, text);
    }
};

template <>
struct ArgumentReader<float> {
    static constexpr const char* kType = "float";
    static float parse(const std::string& name, const std::string& text) {
        return parseFloat(name, text);
    }
};

template <>
struct ArgumentReader<std::string> {
    static constexpr const char* kType = "text";
    static std::string parse(const std::string& name, const std::string& text) {
        return parseText(name, text);
    }
};

template <>
struct ArgumentReader<android::String16> {
    static constexpr const char* kType = "text";
    static android::String16 parse(const std::string& name, const std::string& text) {
        const std::string utf8 = parseText(name, text);
        return android::String16(utf8.data(), utf8.size());
    }
};

/** Raw bytes; spelled as hexadecimal pairs. */
template <>
struct ArgumentReader<std::vector<uint8_t>> {
    static constexpr const char* kType = "hex bytes";
    static std::vector<uint8_t> parse(const std::string& name, const std::string& text) {
        return parseBytes(name, text);
    }
};

template <typename T>
struct ArgumentReader<T, std::enable_if_t<std::is_enum_v<T>>> {
    static constexpr const char* kType = "int";
    static T parse(const std::string& name, const std::string& text) {
        return static_cast<T>(parseInt(name, text));
    }
};

template <typename T>
struct ArgumentReader<std::vector<T>> {
    static inline const std::string kType =
            std::string(ArgumentReader<T>::kType) + " list, separated by commas";
    static std::vector<T> parse(const std::string& name, const std::string& text) {
        std::vector<T> list;
        for (const std::string& part : splitList(text)) {
            list.push_back(ArgumentReader<T>::parse(name, part));
        }
        return list;
    }
};

/**
 * An argument held for the time of a call, and handed to a parameter of type P. Texts go to
 * char* parameters too; the library does not write to them.
 */
template <typename P>
class HeldArgument {
    using Value = std::conditional_t<std::is_same_v<P, char*> || std::is_same_v<P, const char*>,
                                     std::string, std::remove_cv_t<std::remove_reference_t<P>>>;

  public:
    HeldArgument(const std::string& name, const std::string& text)
        : mValue(ArgumentReader<Value>::parse(name, text)) {}

    P get() {
        if constexpr (std::is_pointer_v<P>) {
            return mValue.data();
        } else {
            return mValue;
        }
    }

    static std::string type() { return ArgumentReader<Value>::kType; }

  private:
    Value mValue;
};

}  // namespace tarn::registry

#pragma once

#include <json/value.h>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace tarn::values {

/** What is wrong with a piece of JSON, and where it begins in its text. */
class JsonError : public std::invalid_argument {
  public:
    JsonError(const Json::Value& at, const std::string& reason)
        : std::invalid_argument(reason), mOffset(at.getOffsetStart()) {}

    ptrdiff_t offset() const { return mOffset; }

    /** The same, told to be of that field. */
    JsonError within(const std::string& field) const {
        return JsonError(mOffset, field + ": " + what());
    }

  private:
    JsonError(ptrdiff_t offset, const std::string& reason)
        : std::invalid_argument(reason), mOffset(offset) {}

    ptrdiff_t mOffset;
};

}  // namespace tarn::values

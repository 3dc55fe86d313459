#pragma once

#include <utils/String16.h>

#include <memory>
#include <string>
#include <utility>

namespace Json {
class Value;
}

namespace tarn::registry {

template <typename T, typename Enable = void>
struct ResultType;

/** What a call gave, as JSON; in a form that costs the controllers' files little to compile. */
class Answer {
  public:
    explicit Answer(int value);
    explicit Answer(bool value);
    explicit Answer(float value);
    explicit Answer(const std::string& text);
    explicit Answer(const android::String16& text);

    /** No text is null. */
    explicit Answer(const char* text);

    Answer(Answer&& other) noexcept;
    ~Answer();

    static Answer emptyRecord();
    static Answer emptyList();

    /** Of a record: adds a field after those that it has. */
    template <typename T>
    Answer&& field(const char* name, const T& value) && {
        add(name, ResultType<T>::answer(value));
        return std::move(*this);
    }

    void add(const char* name, const Answer& field);

    /** Of a list. */
    void append(const Answer& element);

    const Json::Value& json() const { return *mJson; }

  private:
    explicit Answer(const Json::Value& json);

    std::unique_ptr<Json::Value> mJson;
};

/** A record to add fields to: record().field("result", ok).field("list", list). */
inline Answer record() {
    return Answer::emptyRecord();
}

}  // namespace tarn::registry

#pragma once

#include <json/value.h>

#include <istream>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "tools/tarnctl/output/JsonStyle.h"

namespace tarnctl {

/** The standard streams that a run of tarnctl works on. */
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

/** Named values in the order in which a person wants to read them. */
using Report = std::vector<std::pair<std::string, Json::Value>>;

/** Standard output: data, and nothing else. Every call is flushed, or throws Failure(kCantWrite).
 */
class Output {
  public:
    Output(std::ostream& stream, JsonStyle style) : mStream(stream), mStyle(style) {}

    /** Where the caller prepares text for people and data for JSON apart. */
    bool isJson() const { return mStyle != JsonStyle::kNone; }

    void result(const Json::Value& value);
    void report(const Report& report);
    void lines(const std::vector<std::string>& lines);

  private:
    std::ostream& mStream;
    const JsonStyle mStyle;
};

/** Standard error: a line each, all beginning with "tarnctl: ". */
class Diagnostics {
  public:
    /** place says where in a batch, or is empty. */
    Diagnostics(std::ostream& stream, bool quiet, std::string place = "")
        : mStream(stream), mQuiet(quiet), mPlace(std::move(place)) {}

    /** Nothing if diagnostics are switched off. */
    void note(const std::string& message) const;

    /** What was asked for by an option of its own, so that it is never switched off. */
    void requested(const std::string& message) const;

  private:
    std::ostream& mStream;
    const bool mQuiet;
    const std::string mPlace;
};

}  // namespace tarnctl

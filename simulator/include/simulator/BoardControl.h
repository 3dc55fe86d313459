#pragma once

#include <json/value.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::simulator {

/** The process that serves the board is gone, or does not answer. */
class BoardUnreachable : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/**
 * Steers a running board, as a person or a test does: state, events, faults. Values only, so that a
 * board of this process and one of another are steered alike. What the board refuses throws
 * std::invalid_argument with the reason and changes nothing; a board of another process throws
 * BoardUnreachable when it does not answer. Any thread may call a board of this process, one
 * thread at a time one of another.
 */
class BoardControl {
  public:
    virtual ~BoardControl() = default;

    /** The board's name, as its file gives it. */
    virtual std::string name() const = 0;

    /**
     * Every property: {"audio.volume": {"type": "i32", "value": 30, "initial": 30, "min": 0, ...}}.
     * The value of an indexed one is an object of the elements that were set.
     */
    virtual Json::Value listProperties() const = 0;

    /** The value of "name", or of an element, "name[index]" or "name[first,second]". */
    virtual Json::Value getProperty(const std::string& name) const = 0;

    /**
     * Sets it, under the same rules as a command; raises no event. The value of a property of any
     * type may be a text as a person types it: "0x20", "on", "0a0b", "[[\"notes\"]]".
     */
    virtual void setProperty(const std::string& name, const Json::Value& value) = 0;

    /** Everything as the board's files describe it. */
    virtual void reset() = 0;

    /** Raises an event with these bytes, after those raised before. */
    virtual void raiseEvent(uint32_t type, const std::vector<uint8_t>& data) = 0;

    /**
     * What applications posted lately, the oldest first: [{"what": 7, "data": "0a0b"}], the data as
     * hexadecimal pairs.
     */
    virtual Json::Value postedEvents() const = 0;

    /** [{"command": "CMD_AUDIO_SET_VOLUME", "fault": {"status": -3, "every": 2}}] */
    virtual Json::Value listFaults() const = 0;

    /**
     * Switches a fault on, for a command by its name or for all of them ("*"); one of the same kind
     * for the same command is replaced. The fault is one of
     *   {"status": n}                      answered with that status, nothing done
     *   {"transport": "dead" | "error"}    the transport fails, nothing done
     *   {"replyBytes": n}                  done, but the reply is cut to n bytes (0: empty)
     *   {"delayMs": n}                     answered later
     * and may have "every": n, or "probability": p with "seed": n.
     */
    virtual void setFault(const std::string& command, const Json::Value& fault) = 0;

    /** Switches off what was set for exactly this command or "*". */
    virtual void clearFault(const std::string& command) = 0;
    virtual void clearFaults() = 0;
};

}  // namespace tarn::simulator

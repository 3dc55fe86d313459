#pragma once

#include <json/value.h>
#include <utils/StrongPointer.h>

#include <cstdint>
#include <string>

#include "simulator/board/SimulatedBoard.h"

namespace tarn::simulator {

/**
 * Steers a running board, as a person or a test does: state, events, faults. Values only, so that
 * it can be offered to other processes as it is. Any thread may call; what is refused throws
 * std::invalid_argument and changes nothing.
 */
class BoardControl {
  public:
    explicit BoardControl(const android::sp<SimulatedBoard>& board) : mBoard(board) {}

    /** The board's name, as its file gives it. */
    std::string name() const;

    /**
     * Every property: {"audio.volume": {"type": "i32", "value": 30, "initial": 30, "min": 0, ...}}.
     * The value of an indexed one is an object of the elements that were set.
     */
    Json::Value listProperties() const;

    /** The value of "name", or of an element, "name[index]" or "name[first,second]". */
    Json::Value getProperty(const std::string& name) const;

    /** Sets it, under the same rules as a command; raises no event. */
    void setProperty(const std::string& name, const Json::Value& value);
    void setPropertyFromText(const std::string& name, const std::string& value);

    /** Raises an event with these bytes, behind those that were raised before. */
    void raiseEvent(uint32_t type, const Bytes& data);

    /** What applications posted lately, the oldest first: [{"what": 7, "data": "0a0b"}]. */
    Json::Value postedEvents() const;

    /** Everything as the board's files describe it. */
    void reset();

    /** [{"command": "CMD_AUDIO_SET_VOLUME", "fault": {"status": -3, "every": 2}}] */
    Json::Value listFaults() const;

    /**
     * Switches a fault on, for a command by its name or for all of them ("*"); one of the same kind
     * for the same command is replaced. The fault is one of
     *   {"status": n}                      answered with that status, nothing done
     *   {"transport": "dead" | "error"}    the transport fails, nothing done
     *   {"replyBytes": n}                  done, but the reply is cut to n bytes (0: empty)
     *   {"delayMs": n}                     answered later
     * and may have "every": n, or "probability": p with "seed": n.
     */
    void setFault(const std::string& command, const Json::Value& fault);

    /** Switches off what was set for exactly this command or "*". */
    void clearFault(const std::string& command);
    void clearFaults();

  private:
    const android::sp<SimulatedBoard> mBoard;
};

}  // namespace tarn::simulator

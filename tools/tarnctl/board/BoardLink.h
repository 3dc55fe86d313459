#pragma once

#include <json/value.h>
#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarnctl {

/**
 * The control of a simulated board. What the board refuses throws std::invalid_argument with the
 * reason; Failure(kUnreachable) is thrown when its process is gone.
 */
class BoardLink {
  public:
    virtual ~BoardLink() = default;

    virtual std::string name() const = 0;

    /** By name: {"type", "value", "initial", "min", "max", "values", "indexed"}, what there is. */
    virtual Json::Value properties() const = 0;

    /** Of an indexed property "name[index]" is one element. */
    virtual Json::Value property(const std::string& name) const = 0;
    virtual void setProperty(const std::string& name, const std::string& value) = 0;

    virtual void raiseEvent(uint32_t type, const std::vector<uint8_t>& data) = 0;

    /** The events that applications posted: [{"what", "data"}], data as hexadecimal pairs. */
    virtual Json::Value postedEvents() const = 0;

    virtual void reset() = 0;

    /** [{"command", "fault"}] */
    virtual Json::Value faults() const = 0;

    /** For a command by name, or "*" for all; fault is what the board's files call "fail". */
    virtual void setFault(const std::string& command, const Json::Value& fault) = 0;
    virtual void clearFault(const std::string& command) = 0;
    virtual void clearFaults() = 0;
};

/**
 * Whether somebody has the hardware service's name, though perhaps doesn't answer: then no
 * simulated board takes its place. False where tarnctl is built without a board.
 */
bool isServicePublished();

/** The files that describe a board; empty ones stand for the default board, without overrides. */
struct BoardFiles {
    std::string board;
    std::string overrides;
};

/**
 * Starts a simulated board as this process's hardware service; null where tarnctl is built without
 * one. Throws Failure: kBadUsage if the board's files are refused, else kUnreachable.
 */
std::unique_ptr<BoardLink> startEmbeddedBoard(const BoardFiles& files);

/**
 * The control of the simulated board that another process serves; null if it serves none. Throws
 * Failure(kUnreachable).
 */
std::unique_ptr<BoardLink> findServedBoard(pid_t process);

}  // namespace tarnctl

#pragma once

#include <sys/types.h>

#include <memory>
#include <string>

#include "simulator/BoardControl.h"

namespace tarnctl {

using tarn::simulator::BoardControl;

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
std::shared_ptr<BoardControl> startEmbeddedBoard(const BoardFiles& files);

/** The control of the simulated board that another process serves; null if it serves none. */
std::shared_ptr<BoardControl> findServedBoard(pid_t process);

}  // namespace tarnctl

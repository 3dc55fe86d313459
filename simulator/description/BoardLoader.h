#pragma once

#include <memory>
#include <string>

#include "simulator/description/BoardFile.h"
#include "simulator/description/BoardModel.h"

namespace tarn::simulator {

/**
 * Reads a board from its file and, if overridePath is not empty, from a file that replaces some of
 * its descriptions. A board is read whole or not at all: throws BoardFileError with everything that
 * is wrong in any of its files.
 *
 * The board named "default" has to describe every command; others answer the commands that they
 * don't describe as if they were unknown.
 */
std::shared_ptr<const BoardModel> loadBoard(const std::string& path,
                                            const std::string& overridePath = "");

}  // namespace tarn::simulator

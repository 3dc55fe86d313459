#include "tools/tarnctl/board/BoardAccess.h"

#include <stdexcept>

#include "registry/Arguments.h"
#include "registry/Registry.h"
#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

namespace {

std::string plainName(const std::string& name) {
    return name.substr(0, name.find('['));
}

void requireProperty(const BoardLink& board, const std::string& name) {
    if (hasProperty(board, name)) return;
    throw Failure(kNoSuchName,
                  "the board has no property \"" + plainName(name) + "\"" +
                          didYouMean(plainName(name), board.properties().getMemberNames()));
}

}  // namespace

bool hasProperty(const BoardLink& board, const std::string& name) {
    return board.properties().isMember(plainName(name));
}

Json::Value readProperty(const BoardLink& board, const std::string& name) try {
    requireProperty(board, name);
    return board.property(name);
} catch (const std::invalid_argument& refusal) {
    throw Failure(kBadUsage, refusal.what());
}

void writeProperty(BoardLink* board, const std::string& name, const std::string& value) try {
    requireProperty(*board, name);
    board->setProperty(name, parseText("value", value));
} catch (const BadArgument&) {
    throw;
} catch (const std::invalid_argument& refusal) {
    throw Failure(kBadUsage, refusal.what());
}

}  // namespace tarnctl

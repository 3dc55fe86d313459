#include "tools/tarnctl/board/BoardAccess.h"

#include <algorithm>
#include <stdexcept>

#include "registry/Arguments.h"
#include "registry/Registry.h"
#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

using ::tarn::registry::BadArgument;
using ::tarn::registry::parseText;

namespace {

std::string plainName(const std::string& name) {
    return name.substr(0, name.find('['));
}

void requireProperty(const BoardControl& board, const std::string& name) {
    if (hasProperty(board, name)) return;
    throw Failure(kNoSuchName, "the board has no property \"" + plainName(name) + "\"" +
                                       didYouMean(plainName(name), propertyNames(board)));
}

}  // namespace

std::vector<std::string> propertyNames(const BoardControl& board) {
    std::vector<std::string> names;
    reachBoard([&] { names = board.listProperties().getMemberNames(); });
    return names;
}

bool hasProperty(const BoardControl& board, const std::string& name) {
    const std::vector<std::string> names = propertyNames(board);
    return std::find(names.begin(), names.end(), plainName(name)) != names.end();
}

Json::Value readProperty(const BoardControl& board, const std::string& name) {
    requireProperty(board, name);
    Json::Value value;
    reachBoard([&] { value = board.getProperty(name); });
    return value;
}

void writeProperty(BoardControl* board, const std::string& name, const std::string& value) {
    requireProperty(*board, name);
    reachBoard([&] { board->setProperty(name, parseText("value", value)); });
}

void reachBoard(const std::function<void()>& work) try { work(); } catch (const BadArgument&) {
    throw;
} catch (const std::invalid_argument& refusal) {
    throw Failure(kBadUsage, refusal.what());
} catch (const tarn::simulator::BoardUnreachable& error) {
    throw Failure(kUnreachable, error.what());
}

}  // namespace tarnctl

#pragma once

#include <string>
#include <vector>

#include "protocol/Layout.h"
#include "tests/support/ParcelWords.h"

namespace tarn::test {

/** Empty where the words are exactly the layout's, else what differs. */
std::string compareWritten(const protocol::Layout& layout, const std::vector<ParcelWord>& words);

/** The same for a reply, of which a method may leave the end unread. */
std::string compareRead(const protocol::Layout& layout, const std::vector<ParcelWord>& words);

/** True when the words are the layout to its end. */
bool readToTheEnd(const protocol::Layout& layout, const std::vector<ParcelWord>& words);

}  // namespace tarn::test

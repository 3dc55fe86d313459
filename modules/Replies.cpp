#include "modules/Replies.h"

#include <algorithm>

#include "protocol/Limits.h"

#define TARN_LOG_TAG "Zunt@Replies"
#include "log/Log.h"

namespace android {

int32_t recordsToRead(int32_t count, int fields) {
    const size_t smallest = static_cast<size_t>(fields) * sizeof(int32_t);
    const auto most = static_cast<int32_t>(tarn::protocol::kMostTransactionBytes / smallest);
    if (count > most)
        TLOGE("a list of %d records: no reply holds more than %d of them", count, most);
    return std::min(count, most);
}

}  // namespace android

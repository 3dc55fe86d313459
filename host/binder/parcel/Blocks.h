#pragma once

#include <cstddef>
#include <cstdint>

namespace android::parcel {

/**
 * The memory of parcels. Blocks of the smallest size are kept for the thread's next parcel, a few
 * of them and cleared; the counts are of blocks in use, whoever took them.
 */

/** What a parcel takes at first, unless it is told its size. */
inline constexpr size_t kSmallestBlock = 128;

/**
 * A block whose first filled bytes the caller overwrites at once; all others are 0. What the heap
 * held before never shows in a parcel. Null without memory.
 */
uint8_t* takeBlock(size_t capacity, size_t filled);

/** block may be null; capacity is what it was taken with. */
void giveBlock(uint8_t* block, size_t capacity);

/** The bytes of all blocks in use, and how many blocks they are. */
size_t bytesInUse();
size_t blocksInUse();

}  // namespace android::parcel

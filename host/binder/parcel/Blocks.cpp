#include "Blocks.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <mutex>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/asan_interface.h>
#endif
#endif
#ifndef ASAN_POISON_MEMORY_REGION
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

namespace android::parcel {

namespace {

// From here on calloc is cheaper than clearing: it hands out pages that the kernel has cleared.
constexpr size_t kLargeBlock = 16 * 1024;

// A command needs three at a time, one within another command's reply a few more.
constexpr size_t kMostKept = 8;

/**
 * What a thread counts and keeps. Threads that send commands at the same time write nothing that
 * they share: each has counts of its own, and whoever asks adds them up. A block that one thread
 * takes and another gives back makes one's count too high and the other's too low by the same.
 */
struct Store {
    enum { UNUSED, IN_USE, ENDED } state;
    std::atomic<size_t> bytes;
    std::atomic<size_t> blocks;
    Store* next;
    size_t kept;
    uint8_t* blank[kMostKept];
};

thread_local Store tStore __attribute__((tls_model("initial-exec")));

struct Stores {
    std::mutex lock;
    Store* first = nullptr;
    // Of the threads that have ended, and of what they did in their last moments.
    std::atomic<size_t> bytes{0};
    std::atomic<size_t> blocks{0};
};

// Never destroyed: threads may still run when the process ends.
Stores& stores() {
    static Stores& all = *new Stores;
    return all;
}

inline void add(std::atomic<size_t>& own, size_t amount) {
    own.store(own.load(std::memory_order_relaxed) + amount, std::memory_order_relaxed);
}

void leave(Store& store) {
    Stores& all = stores();
    std::lock_guard<std::mutex> lock(all.lock);
    Store** place = &all.first;
    while (*place != &store) place = &(*place)->next;
    *place = store.next;
    all.bytes += store.bytes;
    all.blocks += store.blocks;
}

struct Leaving {
    ~Leaving() {
        tStore.state = Store::ENDED;
        leave(tStore);
        while (tStore.kept > 0) {
            uint8_t* block = tStore.blank[--tStore.kept];
            ASAN_UNPOISON_MEMORY_REGION(block, kSmallestBlock);
            free(block);
        }
    }
};

[[gnu::noinline]] bool enter(Store& store) {
    if (store.state == Store::ENDED) return false;
    static thread_local Leaving leaving;
    store.state = Store::IN_USE;
    Stores& all = stores();
    std::lock_guard<std::mutex> lock(all.lock);
    store.next = all.first;
    all.first = &store;
    return true;
}

// Wraps around for blocks that are given back.
inline void count(Store& store, size_t bytes, size_t blocks) {
    if (store.state == Store::IN_USE || enter(store)) {
        add(store.bytes, bytes);
        add(store.blocks, blocks);
    } else {
        stores().bytes += bytes;
        stores().blocks += blocks;
    }
}

uint8_t* newBlock(size_t capacity, size_t filled) {
    if (capacity - filled >= kLargeBlock) return static_cast<uint8_t*>(calloc(capacity, 1));
    uint8_t* block = static_cast<uint8_t*>(malloc(capacity));
    if (block != nullptr) memset(block + filled, 0, capacity - filled);
    return block;
}

size_t sum(std::atomic<size_t> Store::*own, const std::atomic<size_t>& others) {
    std::lock_guard<std::mutex> lock(stores().lock);
    size_t total = others;
    for (const Store* store = stores().first; store != nullptr; store = store->next) {
        total += (store->*own).load(std::memory_order_relaxed);
    }
    return total;
}

}  // namespace

uint8_t* takeBlock(size_t capacity, size_t filled) {
    Store& store = tStore;
    uint8_t* block;
    if (capacity <= kSmallestBlock && store.kept > 0) {
        block = store.blank[--store.kept];
        ASAN_UNPOISON_MEMORY_REGION(block, capacity);
    } else {
        block = newBlock(std::max(capacity, kSmallestBlock), filled);
        if (block == nullptr) return nullptr;
        if (capacity < kSmallestBlock) {
            ASAN_POISON_MEMORY_REGION(block + capacity, kSmallestBlock - capacity);
        }
    }
    count(store, capacity, 1);
    return block;
}

void giveBlock(uint8_t* block, size_t capacity) {
    if (block == nullptr) return;
    Store& store = tStore;
    count(store, -capacity, -size_t{1});
    if (capacity <= kSmallestBlock) {
        ASAN_UNPOISON_MEMORY_REGION(block, kSmallestBlock);
        if (store.state == Store::IN_USE && store.kept < kMostKept) {
            memset(block, 0, kSmallestBlock);
            ASAN_POISON_MEMORY_REGION(block, kSmallestBlock);
            store.blank[store.kept++] = block;
            return;
        }
    }
    free(block);
}

size_t bytesInUse() {
    return sum(&Store::bytes, stores().bytes);
}

size_t blocksInUse() {
    return sum(&Store::blocks, stores().blocks);
}

}  // namespace android::parcel

// The buffer of getDspTestResult() is a mebibyte of every process that loads the library. It costs
// address space alone until the first test result: its pages are not in memory before.

#include <gtest/gtest.h>
#include <link.h>
#include <sys/mman.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/IAvManagerCtrl.h>
#include <tarn/TarnCreator.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "tests/support/FakeHwTarn.h"

using android::ITarnManager;
using android::sp;
using android::TarnCreator;
using tarn::test::FakeHwTarn;

namespace {

constexpr size_t kBufferBytes = 1040384;

struct Pages {
    char* begin = nullptr;
    size_t count = 0;
};

/** The library's pages that hold nothing but zeros when it is loaded: its .bss. */
int findZeroPages(dl_phdr_info* object, size_t, void* found) {
    if (strstr(object->dlpi_name, "/libtarn_vendor_api.so") == nullptr) return 0;
    const uintptr_t page = getpagesize();
    for (int i = 0; i < object->dlpi_phnum; i++) {
        const auto& segment = object->dlpi_phdr[i];
        if (segment.p_type != PT_LOAD || segment.p_memsz <= segment.p_filesz) continue;
        const uintptr_t start = object->dlpi_addr + segment.p_vaddr;
        const uintptr_t begin = (start + segment.p_filesz + page - 1) / page * page;
        const uintptr_t end = (start + segment.p_memsz + page - 1) / page * page;
        *static_cast<Pages*>(found) = {reinterpret_cast<char*>(begin), (end - begin) / page};
        return 1;
    }
    return 0;
}

Pages zeroPages() {
    Pages pages;
    dl_iterate_phdr(findZeroPages, &pages);
    return pages;
}

size_t inMemory(const Pages& pages) {
    std::vector<unsigned char> resident(pages.count);
    if (mincore(pages.begin, pages.count * getpagesize(), resident.data()) != 0) {
        ADD_FAILURE() << "mincore: " << strerror(errno);
    }
    size_t count = 0;
    for (const unsigned char page : resident) count += page & 1;
    return count;
}

TEST(TestResultBuffer, IsNotTouchedBeforeTheFirstTestResult) {
    const sp<FakeHwTarn> service = new FakeHwTarn;
    service->publish();
    const Pages pages = zeroPages();
    ASSERT_GE(pages.count * getpagesize(), kBufferBytes) << "the buffer stands elsewhere";
    const size_t ofTheRest = 2;  // the library's other variables

    ITarnManager* const manager = TarnCreator::create();
    EXPECT_EQ(0, manager->getAudioCtrl()->setVolume(30));
    EXPECT_EQ(0, manager->getAvManagerCtrl()->getCameraPtzMode());
    EXPECT_LE(inMemory(pages), ofTheRest);

    const auto length = static_cast<int32_t>(kBufferBytes / 2);
    std::string reply(3 * sizeof(int32_t) + length, '\1');
    const int32_t head[] = {0, 0, length};
    memcpy(reply.data(), head, sizeof(head));
    service->onInvoke = [&reply](const std::string&) { return reply; };
    ASSERT_NE(nullptr, manager->getAvManagerCtrl()->getDspTestResult());
    EXPECT_GE(inMemory(pages), kBufferBytes / 2 / getpagesize()) << "this is not its memory";
}

}  // namespace

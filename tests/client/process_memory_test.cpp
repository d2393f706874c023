#include "client/platform/x11/process_memory.h"

#include <array>
#include <bit>
#include <limits>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

namespace qf::client {
namespace {

ProcessId Self()
{
    return static_cast<ProcessId>(getpid());
}

TEST(ProcessMemory, ReadsWhatIsThere)
{
    const std::array<std::int32_t, 3> triple{20, 1600, 1433};
    std::array<std::int32_t, 3>       read{};
    ProcessMemory                     memory;
    const ProcessHandle               handle = memory.Open(Self());
    ASSERT_GT(handle, 1U);
    EXPECT_TRUE(
        memory.Read(handle, std::bit_cast<std::uintptr_t>(triple.data()), std::as_writable_bytes(std::span(read))));
    EXPECT_EQ(read, triple);
    memory.Close(handle);
    EXPECT_FALSE(
        memory.Read(handle, std::bit_cast<std::uintptr_t>(triple.data()), std::as_writable_bytes(std::span(read))));
}

TEST(ProcessMemory, ReadFailsWhereOneByteIsUnreadable)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    void*      pages = mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    const auto first = std::bit_cast<std::uintptr_t>(pages);
    ASSERT_EQ(munmap(std::bit_cast<void*>(first + page), page), 0);

    std::array<std::byte, 12> buffer{};
    ProcessMemory             memory;
    const ProcessHandle       handle = memory.Open(Self());
    EXPECT_TRUE(memory.Read(handle, first + page - 12, buffer));
    EXPECT_FALSE(memory.Read(handle, first + page - 11, buffer));
    EXPECT_FALSE(memory.Read(handle, 0, buffer));
    EXPECT_FALSE(memory.Read(handle, std::numeric_limits<std::uint64_t>::max() - 4, buffer));
    munmap(pages, page);
}

TEST(ProcessMemory, MissingProcessIsNotOpened)
{
    ProcessMemory memory;
    EXPECT_EQ(memory.Open(0), 0U);
    EXPECT_EQ(memory.Open(0x7FFFFFF0), 0U);
    memory.Close(0);
    memory.Close(12345);
}

} // namespace
} // namespace qf::client

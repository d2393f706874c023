#include "app/settings/file_settings_store.h"

#include <array>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace qf::app {
namespace {

/// Runs the work in another process; what it throws makes that process end with 1.
pid_t StartProcess(const std::function<void()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            work();
        } catch (...) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    return child;
}

int ExitStatusOf(pid_t child)
{
    int status = -1;
    ::waitpid(child, &status, 0);
    return status;
}

TEST(FileSettingsStoreProcesses, KillingAWriterLeavesTheOldTextOrTheNewOne)
{
    const test::TempFolder folder;
    const auto             file = folder.Path() / "settings.ini";
    FileSettingsStore      store(file);
    store.Write("Configuration", "kept", "kept");
    const std::string even(3000, 'e');
    const std::string odd(5000, 'o');
    store.Write("Configuration", "changing", even);

    std::mt19937 random(7);
    int          seenEven = 0;
    for (int round = 0; round < 60; ++round) {
        std::array<int, 2> started{};
        ASSERT_EQ(::pipe(started.data()), 0);
        const pid_t child = StartProcess([&] {
            for (int turn = 0;; ++turn) {
                store.Write("Configuration", "changing", turn % 2 == 0 ? odd : even);
                if (turn == 0) {
                    ::close(started[1]);
                }
            }
        });
        ASSERT_GT(child, 0);
        ::close(started[1]);
        char       nothing = 0;
        const auto waited = ::read(started[0], &nothing, 1);
        ::close(started[0]);
        ASSERT_EQ(waited, 0);
        const timespec moment{0, static_cast<long>(random() % 12'000'000)};
        ::nanosleep(&moment, nullptr);
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        ASSERT_TRUE(WIFSIGNALED(ExitStatusOf(child)));

        ASSERT_EQ(store.Find("Configuration", "kept"), "kept");
        const auto found = store.Find("Configuration", "changing");
        ASSERT_TRUE(found == even || found == odd);
        seenEven += found == even ? 1 : 0;
        const auto bytes = "[[Dobrin's Quernfield]]\n[Configuration]\nkept=kept\nchanging=" + *found + "\n";
        ASSERT_EQ(folder.Read("settings.ini"), bytes);
    }
    EXPECT_GT(seenEven, 0);
    EXPECT_LT(seenEven, 60);
    store.Write("Configuration", "changing", "done");
    EXPECT_EQ(store.Find("Configuration", "changing"), "done");
}

TEST(FileSettingsStoreProcesses, TwoWritersLoseNoneOfEachOthersKeys)
{
    constexpr int          Keys = 100;
    const test::TempFolder folder;
    const auto             file = folder.Path() / "settings.ini";
    const auto             writer = [&](const std::string& name) {
        return StartProcess([&file, name] {
            FileSettingsStore store(file);
            for (int key = 0; key < Keys; ++key) {
                store.Write("Configuration", name + std::to_string(key), name + "=" + std::to_string(key));
            }
        });
    };
    const pid_t first = writer("first");
    const pid_t second = writer("second");
    EXPECT_EQ(ExitStatusOf(first), 0);
    EXPECT_EQ(ExitStatusOf(second), 0);

    FileSettingsStore store(file);
    for (const std::string name : {"first", "second"}) {
        for (int key = 0; key < Keys; ++key) {
            EXPECT_EQ(store.Find("Configuration", name + std::to_string(key)), name + "=" + std::to_string(key));
        }
    }
}

} // namespace
} // namespace qf::app

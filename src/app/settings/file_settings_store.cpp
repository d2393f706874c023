#include "app/settings/file_settings_store.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

#include "app/settings/user_folders.h"
#include "core/product.h"
#include "core/runtime_error.h"

namespace qf::app {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Application = core::ThisProduct.title;
constexpr auto             LockPatience = std::chrono::seconds(5);
constexpr auto             LockPause = std::chrono::milliseconds(2);
constexpr int              MostLinks = 40;

[[noreturn]] void ThrowAccessError()
{
    throw core::RuntimeError(core::error::PathFileAccess);
}

class Descriptor {
  public:
    Descriptor(const fs::path& path, int flags, mode_t mode = 0)
        : number_(::open(path.c_str(), flags | O_CLOEXEC, mode))
    {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int  Number() const { return number_; }

    /// False where the system reports that earlier writes were lost.
    bool Close()
    {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0;
    }

  private:
    int number_;
};

enum class ReadResult { Absent, Unreadable, Read };

struct FileContent {
    ReadResult  result = ReadResult::Unreadable;
    std::string bytes;
    struct stat status = {};
};

FileContent ReadAll(const fs::path& file)
{
    FileContent      content;
    // Without O_NONBLOCK a pipe in the file's place would hold the program until somebody writes to it.
    const Descriptor descriptor(file, O_RDONLY | O_NONBLOCK);
    if (!descriptor.IsOpen()) {
        content.result = errno == ENOENT ? ReadResult::Absent : ReadResult::Unreadable;
        return content;
    }
    if (::fstat(descriptor.Number(), &content.status) != 0 || !S_ISREG(content.status.st_mode)) {
        return content;
    }
    std::array<char, 16384> buffer{};
    for (;;) {
        const auto count = ::read(descriptor.Number(), buffer.data(), buffer.size());
        if (count == 0) {
            content.result = ReadResult::Read;
            return content;
        }
        if (count > 0) {
            content.bytes.append(buffer.data(), static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            content.bytes.clear();
            return content;
        }
    }
}

bool WriteAll(const Descriptor& descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto count = ::write(descriptor.Number(), bytes.data(), bytes.size());
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

/// Where the bytes really lie: a settings file is often a link into a folder of dot files.
fs::path FollowLinks(fs::path file)
{
    for (int links = 0; links < MostLinks; ++links) {
        std::error_code failure;
        if (!fs::is_symlink(fs::symlink_status(file, failure))) {
            return file;
        }
        const auto target = fs::read_symlink(file, failure);
        if (failure) {
            break;
        }
        file = file.parent_path() / target;
    }
    ThrowAccessError();
}

fs::path WithSuffix(fs::path file, const char* suffix)
{
    file += suffix;
    return file;
}

fs::path FolderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

void Lock(const Descriptor& lock)
{
    const auto deadline = std::chrono::steady_clock::now() + LockPatience;
    while (::flock(lock.Number(), LOCK_EX | LOCK_NB) != 0) {
        const bool held = errno == EWOULDBLOCK || errno == EINTR;
        if (!held || std::chrono::steady_clock::now() > deadline) {
            ThrowAccessError();
        }
        std::this_thread::sleep_for(LockPause);
    }
}

/// Called under the lock alone, so that one name serves for the new text and what a killed program left
/// under it is in nobody's use.
void Replace(const fs::path& file, const FileContent& old, std::string_view bytes)
{
    const auto fresh = WithSuffix(file, ".new");
    ::unlink(fresh.c_str());
    Descriptor descriptor(fresh, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    bool       written = descriptor.IsOpen() && WriteAll(descriptor, bytes);
    if (written && old.result == ReadResult::Read) {
        // The owner of a file can only be kept by the superuser; its permissions by everyone.
        [[maybe_unused]] const int owner = ::fchown(descriptor.Number(), old.status.st_uid, old.status.st_gid);
        written = ::fchmod(descriptor.Number(), old.status.st_mode & 07777U) == 0;
    }
    written = written && ::fsync(descriptor.Number()) == 0;
    written = descriptor.Close() && written;
    if (!written || ::rename(fresh.c_str(), file.c_str()) != 0) {
        ::unlink(fresh.c_str());
        ThrowAccessError();
    }
    // Some file systems cannot sync a folder; the new text is in place all the same.
    const Descriptor folder(FolderOf(file), O_RDONLY | O_DIRECTORY);
    if (folder.IsOpen()) {
        ::fsync(folder.Number());
    }
}

} // namespace

FileSettingsStore::FileSettingsStore(fs::path file) : file_(std::move(file)) {}

fs::path FileSettingsStore::DefaultFile()
{
    return UserFolder("XDG_CONFIG_HOME", ".config") / "quernfield" / "settings.ini";
}

std::optional<std::string> FileSettingsStore::Find(std::string_view section, std::string_view key)
{
    return SettingsText(ReadAll(file_).bytes).Find(Application, section, key);
}

void FileSettingsStore::Write(std::string_view section, std::string_view key, std::string_view text)
{
    Change([&](SettingsText& settings) {
        if (settings.Find(Application, section, key) == text) {
            return false;
        }
        settings.Set(Application, section, key, text);
        return true;
    });
}

void FileSettingsStore::Remove(std::string_view section, std::string_view key)
{
    if (Find(section, key)) {
        Change([&](SettingsText& settings) { return settings.Remove(Application, section, key); });
    }
}

void FileSettingsStore::Change(const std::function<bool(SettingsText&)>& change)
{
    const auto file = FollowLinks(file_);
    if (ReadAll(file).result == ReadResult::Unreadable) {
        ThrowAccessError();
    }
    std::error_code failure;
    fs::create_directories(FolderOf(file), failure);

    const Descriptor lock(WithSuffix(file, ".lock"), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR);
    if (!lock.IsOpen()) {
        ThrowAccessError();
    }
    Lock(lock);
    const auto old = ReadAll(file);
    if (old.result == ReadResult::Unreadable) {
        ThrowAccessError();
    }
    SettingsText settings(old.bytes);
    if (change(settings)) {
        Replace(file, old, settings.Bytes());
    }
}

} // namespace qf::app

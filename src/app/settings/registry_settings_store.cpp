#include "app/settings/registry_settings_store.h"

#include <limits>
#include <utility>
#include <vector>
#include <windows.h>

#include "core/runtime_error.h"

namespace qf::app {

namespace {

[[noreturn]] void ThrowAccessError()
{
    throw core::RuntimeError(core::error::PathFileAccess);
}

std::wstring ToWide(std::string_view utf8)
{
    if (utf8.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        ThrowAccessError();
    }
    const int    size = static_cast<int>(utf8.size());
    const int    length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
    return wide;
}

std::string ToUtf8(std::wstring_view wide)
{
    const int   size = static_cast<int>(wide.size());
    const int   length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

class RegistryKey {
  public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey()
    {
        if (handle_ != nullptr) {
            RegCloseKey(handle_);
        }
    }

    bool Open(const std::wstring& path, REGSAM access)
    {
        return RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, &handle_) == ERROR_SUCCESS;
    }
    bool Create(const std::wstring& path)
    {
        return RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &handle_,
                               nullptr) == ERROR_SUCCESS;
    }
    HKEY Handle() const { return handle_; }

  private:
    HKEY handle_ = nullptr;
};

} // namespace

RegistrySettingsStore::RegistrySettingsStore(std::wstring root) : root_(std::move(root)) {}

std::wstring RegistrySettingsStore::PathOf(std::string_view section) const
{
    return root_ + L"\\" + ToWide(section);
}

std::optional<std::string> RegistrySettingsStore::Find(std::string_view section, std::string_view key)
{
    RegistryKey registry;
    if (!registry.Open(PathOf(section), KEY_QUERY_VALUE)) {
        return std::nullopt;
    }
    const auto           name = ToWide(key);
    std::vector<wchar_t> data(256);
    for (;;) {
        DWORD       type = 0;
        auto        bytes = static_cast<DWORD>(data.size() * sizeof(wchar_t));
        const DWORD room = bytes;
        const auto  result = RegQueryValueExW(registry.Handle(), name.c_str(), nullptr, &type,
                                              reinterpret_cast<BYTE*>(data.data()), &bytes);
        if (result == ERROR_MORE_DATA && bytes > room) {
            // Another program may lengthen the value before the next look, hence the loop.
            data.resize(bytes / sizeof(wchar_t) + 1);
            continue;
        }
        if (result != ERROR_SUCCESS || bytes > room || (type != REG_SZ && type != REG_EXPAND_SZ)) {
            return std::nullopt;
        }
        std::wstring_view text(data.data(), bytes / sizeof(wchar_t));
        if (text.ends_with(L'\0')) {
            text.remove_suffix(1);
        }
        return ToUtf8(text);
    }
}

void RegistrySettingsStore::Write(std::string_view section, std::string_view key, std::string_view text)
{
    RegistryKey registry;
    if (!registry.Create(PathOf(section))) {
        ThrowAccessError();
    }
    const auto        name = ToWide(key);
    const auto        value = ToWide(text);
    const std::size_t bytes = (value.size() + 1) * sizeof(wchar_t);
    if (bytes > std::numeric_limits<DWORD>::max() ||
        RegSetValueExW(registry.Handle(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                       static_cast<DWORD>(bytes)) != ERROR_SUCCESS) {
        ThrowAccessError();
    }
}

void RegistrySettingsStore::Remove(std::string_view section, std::string_view key)
{
    if (!Find(section, key)) {
        return;
    }
    RegistryKey registry;
    if (!registry.Open(PathOf(section), KEY_SET_VALUE) ||
        RegDeleteValueW(registry.Handle(), ToWide(key).c_str()) != ERROR_SUCCESS) {
        ThrowAccessError();
    }
}

} // namespace qf::app

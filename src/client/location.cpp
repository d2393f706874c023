#include "client/location.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "core/text.h"

namespace qf::client {

namespace {

constexpr std::string_view AssistClass = "UOASSIST-TP-MSG-WND";

constexpr std::array<std::string_view, 3> ClassicClasses{
    "Ultima Online",
    "Ultima Online Third Dawn",
    "Ultima Online 3D",
};

constexpr std::size_t TripleSize = 12;

/// A process opened for reading, closed on every path.
class OpenedProcess {
  public:
    OpenedProcess(ClientPlatform& platform, ProcessId process)
        : platform_(platform), handle_(platform.OpenProcess(process))
    {}
    ~OpenedProcess()
    {
        if (handle_ != 0) {
            platform_.CloseProcess(handle_);
        }
    }
    OpenedProcess(const OpenedProcess&) = delete;
    OpenedProcess& operator=(const OpenedProcess&) = delete;

    bool Read(std::uint64_t address, std::span<std::byte> buffer)
    {
        return handle_ != 0 && platform_.ReadMemory(handle_, address, buffer);
    }

  private:
    ClientPlatform& platform_;
    ProcessHandle   handle_;
};

WindowHandle FindClassicClient(ClientPlatform& platform)
{
    for (const std::string_view className : ClassicClasses) {
        const WindowHandle window = platform.FindWindowByClass(className);
        if (window != 0 && platform.IsWindow(window)) {
            return window;
        }
    }
    return 0;
}

std::int32_t LittleEndian32(std::span<const std::byte, 4> bytes)
{
    std::uint32_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        number = number << 8 | std::to_integer<std::uint32_t>(bytes[i]);
    }
    return static_cast<std::int32_t>(number);
}

PlayerLocation ReadTriple(ClientPlatform& platform, std::int32_t calibration)
{
    const WindowHandle client = FindClassicClient(platform);
    if (client == 0) {
        return UnknownLocation;
    }
    OpenedProcess process(platform, platform.ProcessOf(client));

    // A calibration is a 32-bit address: one in the upper half is stored as a negative number.
    const auto                        address = static_cast<std::uint32_t>(calibration);
    std::array<std::byte, TripleSize> buffer{};
    if (!process.Read(address, buffer)) {
        return UnknownLocation;
    }
    const std::span<const std::byte, TripleSize> triple(buffer);
    return {LittleEndian32(triple.subspan<0, 4>()), LittleEndian32(triple.subspan<4, 4>()),
            LittleEndian32(triple.subspan<8, 4>())};
}

} // namespace

PlayerLocation GetPlayerLocation(ClientPlatform& platform, std::int32_t calibration, bool usingClassicUO)
{
    if (calibration == 0) {
        return UnknownLocation;
    }
    if (usingClassicUO) {
        const WindowHandle assist = platform.FindWindowByClass(AssistClass);
        if (assist > 1) {
            const std::int32_t answer = platform.Send(assist, message::AssistPosition);
            return {0, core::HiWord(answer), core::LoWord(answer)};
        }
    }
    return ReadTriple(platform, calibration);
}

} // namespace qf::client

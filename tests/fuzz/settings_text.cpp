#include "app/settings/settings_text.h"

#include <cstdlib>

// Whatever a settings file holds, it comes out byte for byte, and a key that is written is found again.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    qf::app::SettingsText  text(bytes);
    if (text.Bytes() != bytes) {
        std::abort();
    }
    const auto half = bytes.substr(0, size / 2);
    text.Set("Dobrin's Quernfield", "Configuration", "UOPath", half);
    const auto found = qf::app::SettingsText(text.Bytes()).Find("dobrin's quernfield", "CONFIGURATION", "uopath");
    if (found != std::string(half)) {
        std::abort();
    }
    return 0;
}

#pragma once

#include <string>
#include <string_view>

namespace qf::core {

/// What the program calls itself.
struct Product {
    std::string_view title;
    int              major;
    int              minor;
    int              revision;
    std::string_view description;
};

inline constexpr Product ThisProduct{"Dobrin's Quernfield", 2025, 0, 0, ""};

inline constexpr std::string_view HomePage = "https://quernfield.example/";
inline constexpr std::string_view CompanyName = "Tallow Software";

/// Major, minor and revision letter run together: "20250 " for 2025, 0, 0.
std::string VersionText(const Product& product = ThisProduct);

/// The title of message boxes: the application's title, a blank, the version text and, where there is
/// one, a blank and the description.
std::string ProductTitle(const Product& product = ThisProduct);

} // namespace qf::core

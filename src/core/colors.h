#pragma once

namespace zelvor {

// Red, green, blue and alpha from 0 to 1. `platformRed` names the platform's own red instead.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool platformRed = false;
    friend constexpr bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color blackColor{};
inline constexpr Color whiteColor{1, 1, 1, 1, false};
inline constexpr Color redColor{1, 0, 0, 1, true};                // missing, unconfirmed, negative
inline constexpr Color inOrderColor{0.121, 0.212, 0.607, 1};      // filled, confirmed, gathering rows
inline constexpr Color catalogTitleColor{0.196, 0.396, 0.282, 1}; // tab titles of catalogs
inline constexpr Color reportTitleColor{0.835, 0.243, 0.016, 1};  // tab titles of reports
inline constexpr Color reportGroundColor{0.992, 0.968, 0.89, 1};  // table ground of reports
inline constexpr Color rowsMissingColor{0.992, 0.714, 0.133, 0.3};

} // namespace zelvor

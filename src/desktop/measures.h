#pragma once

namespace zelvor::measures {

// Distances of the 4-pixel grid, in device-independent pixels.
inline constexpr int labelGap = 4;
inline constexpr int rowGap = 8;
inline constexpr int groupGap = 16;
inline constexpr int pageMargin = 12;
inline constexpr int rowPadding = 8; // of a table row, beyond the text's height
inline constexpr int menuIcon = 16;
inline constexpr int toolIcon = 20;

} // namespace zelvor::measures

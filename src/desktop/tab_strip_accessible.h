#pragma once

namespace zelvor {

// From here on screen readers see a TabStrip as a list of page tabs: each with its title, its place, whether
// it is the one in front, and the actions to bring it there and to close it. Safe to call again.
void installTabStripAccessibility();

} // namespace zelvor

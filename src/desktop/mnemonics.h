#pragma once

class QMenu;
class QMenuBar;

namespace zelvor {

// Gives each entry of a menu that has no key yet one of its own: the first letter that is free, initials of
// words before others. Entries whose texts come from a project or a translation never share one that way.
void assignMnemonics(QMenu* menu);
void assignMnemonics(QMenuBar* bar);

} // namespace zelvor

#pragma once

#include "shell/tab_page.h"

class QWidget;

namespace zelvor {

class MainViewController;
class Page;

// The widget of what stands under a tab; null for what has no page.
Page* makePage(const TabPage& page, MainViewController& workspace, QWidget* parent);

} // namespace zelvor

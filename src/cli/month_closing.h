#pragma once

#include "cli/answer.h"

namespace zelvor {

class AppDelegate;

// Closes the last finished month, as the answer "Proceed" to the question at a project's opening does.
Answer closeLastMonth(AppDelegate& appDelegate);

} // namespace zelvor

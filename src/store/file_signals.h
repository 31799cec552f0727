#pragma once

namespace zelvor {

// Called once by main. A write beyond the file-size limit, or into a closed pipe, then is a failed write
// like any other instead of the end of the process.
void ignoreFileSizeSignals();

} // namespace zelvor

#pragma once

namespace zelvor {

// Each benchmark program defines it: names what it measures.
void registerBenchmarks();

} // namespace zelvor

#include "desktop/shared_popovers.h"

namespace zelvor {

void makeSharedPopovers(MainViewController&, QWidget*) {}

} // namespace zelvor

#include "desktop/window/main_window.h"

namespace oxhost::desktop {

main_window::main_window() = default;

}  // namespace oxhost::desktop

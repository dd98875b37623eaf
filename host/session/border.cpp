#include "session/border.h"

namespace oxhost {
namespace {

fault_listener listening = nullptr;

}  // namespace

void listen_to_faults(fault_listener listener) { listening = listener; }

void tell_fault(const ox::border_fault& fault) {
    if (listening) listening(fault);
}

}  // namespace oxhost

#include "session/interruption.h"

#include <poll.h>
#include <signal.h>

#include <array>
#include <cerrno>
#include <iostream>

namespace oxhost {
namespace {

constexpr std::array<int, 2> watched{SIGINT, SIGTERM};
volatile sig_atomic_t noted = 0;
std::array<struct sigaction, watched.size()> previous;
bool wished_for = false;

void note(int signal) { noted = signal; }

}  // namespace

int interrupting_signal() { return noted; }

bool ending_wished() { return noted || wished_for; }

void wish_ending(bool wished) { wished_for = wished; }

interruption_watch::interruption_watch() {
    struct sigaction noting {};
    noting.sa_handler = note;
    noting.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);  // what is being printed goes out whole
    sigemptyset(&noting.sa_mask);
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], nullptr, &previous[i]);
        if (previous[i].sa_handler != SIG_IGN) sigaction(watched[i], &noting, nullptr);
    }
}

interruption_watch::~interruption_watch() {
    for (std::size_t i = 0; i < watched.size(); ++i) sigaction(watched[i], &previous[i], nullptr);
}

bool wait_for_input(int file) {
    pollfd wanted{file, POLLIN, 0};
    while (!noted && poll(&wanted, 1, -1) < 0 && errno == EINTR) {
    }
    return noted == 0;
}

void end_by_signal() {
    if (!noted) return;
    std::cout.flush();
    std::cerr.flush();
    signal(noted, SIG_DFL);
    raise(noted);
}

void ignore_closed_pipes() { signal(SIGPIPE, SIG_IGN); }

}  // namespace oxhost

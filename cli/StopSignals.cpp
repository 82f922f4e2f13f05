#include "StopSignals.h"

#include <csignal>
#include <initializer_list>

namespace folionet {
namespace {

volatile std::sig_atomic_t noted = 0;

void Note(int signal) { noted = signal; }

}  // namespace

void NoteStopSignals() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction old {};
    if (sigaction(signal, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) continue;
    struct sigaction action {};
    action.sa_handler = Note;
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(signal, &action, nullptr);
  }
}

int StopSignal() { return noted; }

}  // namespace folionet

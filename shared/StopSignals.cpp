#include "StopSignals.h"

#include <initializer_list>

namespace folionet {
namespace {

volatile std::sig_atomic_t noted = 0;

void Note(int signal) { noted = signal; }

}  // namespace

StopSignals::StopSignals() {
  noted = 0;
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction old {};
    if (sigaction(signal, nullptr, &old) != 0 || old.sa_handler == SIG_IGN) continue;
    struct sigaction action {};
    action.sa_handler = Note;
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    if (sigaction(signal, &action, nullptr) == 0) m_before.emplace_back(signal, old);
  }
}

StopSignals::~StopSignals() {
  for (const auto& [signal, before] : m_before) sigaction(signal, &before, nullptr);
}

int StopSignal() { return noted; }

}  // namespace folionet

#include "FolderScan.h"

#include <atomic>
#include <thread>
#include <utility>

#include "Paths.h"

namespace folionet {

struct FolderScan::Look {
  FolderQuestion question;
  std::atomic<bool> isWanted{true};
  std::atomic<bool> isDone{false};
  FolderAnswer answer;  // once it is done
};

FolderScan::FolderScan() {
  constexpr int kInterval = 20;  // milliseconds
  m_poll.setInterval(kInterval);
  connect(&m_poll, &QTimer::timeout, this, &FolderScan::Poll);
}

FolderScan::~FolderScan() {
  if (m_look) m_look->isWanted = false;
}

// The thread holds all that it needs, so that the program can end while a disk does not answer.
void FolderScan::Start(FolderQuestion question) {
  if (m_look) m_look->isWanted = false;
  m_question = std::move(question);
  m_answer.reset();
  m_look = std::make_shared<Look>();
  m_look->question = m_question;
  std::thread([look = m_look] {
    const FolderQuestion& asked = look->question;
    const auto facts = LookIntoFolder(asked.folder, asked.written, [&] { return look->isWanted.load(); });
    if (facts) look->answer = {*facts, !asked.index.empty() && FileExists(asked.folder + asked.index)};
    look->isDone = true;
  }).detach();
  m_poll.start();
}

void FolderScan::Poll() {
  if (!m_look->isDone) return;
  m_poll.stop();
  m_answer = std::make_unique<FolderAnswer>(m_look->answer);
  emit Done();
}

}  // namespace folionet

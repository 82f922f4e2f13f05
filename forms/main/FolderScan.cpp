#include "FolderScan.h"

#include <atomic>
#include <utility>

#include "Paths.h"

namespace folionet {

void FolderScan::Start(FolderQuestion question) {
  m_question = std::move(question);
  m_answer.reset();
  const auto answer = std::make_shared<FolderAnswer>();
  m_work.Start(
      [answer, asked = m_question](const std::atomic<bool>& isWanted) {
        const auto facts = LookIntoFolder(asked.folder, asked.written, [&] { return isWanted.load(); });
        if (facts) *answer = {*facts, !asked.index.empty() && FileExists(asked.folder + asked.index)};
      },
      [this, answer] {
        m_answer = answer;
        emit Done();
      });
}

}  // namespace folionet

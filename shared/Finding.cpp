#include "Finding.h"

namespace folionet {

Finding FindingOf(const RunTimeError& error) {
  Finding finding{.kind = error.Line() != 0 ? FindingKind("malformed") : FindingKind("unreadable"),
                  .file = error.Item(),
                  .line = error.Line(),
                  .what = {"%1.", {std::string(StandardMessage(error.Number()))}}};
  if (!error.Detail().empty()) {
    finding.what.pattern = "%1. %2";
    finding.what.arguments.push_back(error.Detail());
  }
  return finding;
}

Finding Warning(FindingKind kind, Sentence what, Sentence remedy) {
  return {.kind = kind, .severity = Severity::kWarning, .what = std::move(what), .remedy = std::move(remedy)};
}

void Findings::Add(Finding finding) {
  ++m_counts[static_cast<std::size_t>(finding.severity)];
  if (m_kept.size() < kMostKept) m_kept.push_back(std::move(finding));
}

}  // namespace folionet

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "FindingKind.h"
#include "RunTimeError.h"
#include "Sentence.h"

namespace folionet {

enum class Severity {
  kNote,     // told because it was asked for
  kWarning,  // works, and is perhaps not what was meant
  kFault,
};

// Where in a Bible something is; 0 and the empty text stand for what is not known.
struct BiblePlace {
  int book = 0;     // from 1
  int chapter = 0;  // from 1
  std::string verse{};
};

// Something that a look through files found, as a value: the command line prints it, a form shows it.
struct Finding {
  FindingKind kind;
  Severity severity = Severity::kFault;
  std::string file{};    // UTF-8
  std::size_t line = 0;  // from 1; 0 is the file as a whole
  BiblePlace place{};
  Sentence what{};
  Sentence remedy{};  // what a person does about it; empty when the kind of look has one remedy for all
  // What the setting "Charset" should be, where another one is the remedy; empty where that cannot be told.
  std::optional<std::string> charsetEntry{};
};

// What the reader of a file could not read, with the kind "unreadable"; a line that has not the form of its file is of
// the kind "malformed".
Finding FindingOf(const RunTimeError& error);

// Something of a warning's weight that is of no one file.
Finding Warning(FindingKind kind, Sentence what, Sentence remedy);

// Collects what is found, in the order in which it is found.
class Findings {
 public:
  // More are counted only: nobody reads them, and files of nothing but faults must come to an end.
  static constexpr std::size_t kMostKept = 1000;

  void Add(Finding finding);

  const std::vector<Finding>& Kept() const { return m_kept; }

  // Of one severity, those that are not kept included.
  std::size_t Count(Severity severity) const { return m_counts[static_cast<std::size_t>(severity)]; }
  std::size_t Count() const { return m_counts[0] + m_counts[1] + m_counts[2]; }

 private:
  std::vector<Finding> m_kept;
  std::size_t m_counts[3]{};
};

}  // namespace folionet

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "SiteFolder.h"

namespace folionet {

class ChangeJournal;

// What a compile run did to the files of the output folder, or would do, each file told once.
class SiteChanges {
 public:
  void Written(const std::string& name, PageChange change, std::size_t bytes);

  void NoteRemoved(const std::string& name, Removal removal);

  // A person's file was in the place of that one, and is kept beside it.
  void NoteKept(const std::string& name) { m_kept.push_back(name); }

  // Names in the order in which the run came to them.
  std::vector<std::string> New() const { return Names(State::kNew); }
  std::vector<std::string> Changed() const { return Names(State::kChanged); }
  std::vector<std::string> Same() const { return Names(State::kSame); }
  std::vector<std::string> Removed() const { return Names(State::kRemoved); }
  // Whether the file is a new, a changed or a removed one.
  bool IsTold(const std::string& name) const;

  // How long a file is that was written.
  std::size_t Bytes(const std::string& name) const { return m_states.at(name).bytes; }
  const std::vector<std::string>& Kept() const { return m_kept; }

  // Files that earlier runs changed, and that no list has told yet: none of those above, and all of them are there.
  std::vector<std::string> pending;

  // The same for those that are not there any more.
  std::vector<std::string> pendingRemoved;

  // Whether these are known: a run that ends before it has come to the output folder tells of no other.
  bool knowsPending = false;

  // Keeps them until they have been told, of a run that lists them; null where it has not come to the folder.
  std::shared_ptr<ChangeJournal> journal;

  // Why a list of this run could be lost if it were broken off; empty where it could not.
  std::string trouble;

 private:
  enum class State { kNew, kChanged, kSame, kRemoved, kNothing };
  struct File {
    State state;
    std::size_t bytes = 0;
  };
  std::vector<std::string> Names(State state) const;

  std::unordered_map<std::string, File> m_states;
  std::vector<const std::string*> m_order;  // its keys
  std::vector<std::string> m_kept;
};

}  // namespace folionet

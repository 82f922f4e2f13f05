#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "JournalFile.h"
#include "SiteFolder.h"

namespace folionet {

// Which files of a site were changed by runs that did not come to their end, or whose list was not delivered: a file of
// its own for each output folder, "<state folder>/<number>.changes", with a name a line in the order of the changes;
// one that could not be closed has "/" before it. A name is there before its file is changed, so that nothing is
// missing when the program is killed.
class ChangeJournal : public ChangeWatch {
 public:
  // Reads what earlier runs left for an output folder, by its path without a link. Where either is empty nothing is
  // kept.
  ChangeJournal(const std::string& stateFolder, const std::string& realFolder);

  // Throws RunTimeError where another program has begun to use the journal meanwhile.
  void WillChange(const std::string& name) override;
  void CouldNotClose(const std::string& name) override;
  bool IsDoubtful(const std::string& name) const override;

  // False when what earlier runs left could not be read: it stays as it is, and nothing is added.
  bool KnowsPending() const { return m_knowsPending; }

  // What earlier runs left, in the order of the changes.
  const std::vector<std::string>& Pending() const { return m_pending; }

  // The program that has the journal at hand, as LockHolder names it; empty for none.
  const std::string& Holder() const { return m_holder; }

  // Why changes cannot be kept, or some are lost; empty where all is well.
  std::string Trouble() const;

  // The run came to its end, and nobody wants a list of what it changed: that is forgotten, what was pending is not.
  void Forget();

  // The list of all that had changed has reached whoever wanted it: nothing is pending any more.
  void ForgetAll();

 private:
  bool Open();
  void Add(const std::string& line);

  std::string m_path;       // empty when nothing is kept
  std::size_t m_whole = 0;  // bytes of the journal before its last line's end
  std::vector<std::string> m_pending;
  std::unordered_map<std::string, bool> m_doubtful;  // of each name that the journal holds
  JournalFile m_file;
  bool m_knowsPending = true;
  bool m_isCut = false;  // by another program
  std::string m_holder;
  std::string m_trouble;
};

// $XDG_STATE_HOME/Folionet, or ~/.local/state/Folionet; empty where neither is a whole path.
std::string UserStateFolder();

}  // namespace folionet

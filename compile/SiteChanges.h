#pragma once

#include <map>
#include <string>
#include <vector>

#include "PageFile.h"

namespace folionet {

// What a compile run did to the files of the output folder, or would do, each file told once.
class SiteChanges {
 public:
  void Written(const std::string& name, PageChange change);

  // `wasThere` says whether the file was there when it was to be deleted.
  void Removed(const std::string& name, bool wasThere);

  // Names in the order in which the run came to them.
  std::vector<std::string> New() const { return Names(State::kNew); }
  std::vector<std::string> Changed() const { return Names(State::kChanged); }
  std::vector<std::string> Same() const { return Names(State::kSame); }
  std::vector<std::string> Removed() const { return Names(State::kRemoved); }

 private:
  enum class State { kNew, kChanged, kSame, kRemoved, kNothing };
  std::vector<std::string> Names(State state) const;

  std::map<std::string, State> m_states;
  std::vector<std::string> m_order;
};

}  // namespace folionet

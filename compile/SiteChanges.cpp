#include "SiteChanges.h"

namespace folionet {

void SiteChanges::Written(const std::string& name, PageChange change, std::size_t bytes) {
  const State state = change == PageChange::kNew       ? State::kNew
                      : change == PageChange::kChanged ? State::kChanged
                                                       : State::kSame;
  const auto [entry, isFirst] = m_states.emplace(name, File{state, bytes});
  if (isFirst) m_order.push_back(&entry->first);
  // A page that is written again is new, or has changed, as it was or had the first time.
  if (entry->second.state == State::kSame && state == State::kChanged) entry->second.state = state;
  entry->second.bytes = bytes;
}

void SiteChanges::NoteRemoved(const std::string& name, Removal removal) {
  const auto [entry, isFirst] =
      m_states.emplace(name, File{removal == Removal::kRemoved ? State::kRemoved : State::kNothing});
  if (isFirst) {
    m_order.push_back(&entry->first);
  } else if (removal != Removal::kFailed) {
    // A page that the run itself made was not there before it.
    entry->second.state = entry->second.state == State::kNew ? State::kNothing : State::kRemoved;
  }
}

bool SiteChanges::IsTold(const std::string& name) const {
  const auto entry = m_states.find(name);
  return entry != m_states.end() && entry->second.state != State::kSame && entry->second.state != State::kNothing;
}

std::vector<std::string> SiteChanges::Names(State state) const {
  std::vector<std::string> names;
  for (const std::string* name : m_order) {
    if (m_states.at(*name).state == state) names.push_back(*name);
  }
  return names;
}

}  // namespace folionet

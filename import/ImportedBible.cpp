#include "ImportedBible.h"

#include <algorithm>
#include <tuple>

#include "RunTimeError.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestText = std::size_t{64} << 20;

}  // namespace

ImportedBible::Verse ImportedBible::VerseAt(std::size_t i) const {
  const Place& place = m_places[i];
  const std::string_view all = m_text;
  return {place.book, place.chapter, all.substr(place.start, place.fieldLength),
          all.substr(place.start + place.fieldLength, place.textLength)};
}

void ImportedBible::Add(const Verse& verse) {
  if (m_text.size() + verse.text.size() > kLongestText) {
    throw RunTimeError(kOutOfMemory, "The text", "It is longer than 64 MiB.");
  }
  m_places.push_back({static_cast<std::uint32_t>(m_text.size()), static_cast<std::uint32_t>(verse.text.size()),
                      static_cast<std::uint8_t>(verse.field.size()), static_cast<std::uint8_t>(verse.book),
                      static_cast<std::uint8_t>(verse.chapter)});
  m_text.append(verse.field).append(verse.text);
}

void ImportedBible::Renumber(const NewNumbers& numbers) {
  for (Place& place : m_places) place.book = numbers[place.book];
  std::erase_if(m_places, [](const Place& place) { return place.book == 0; });
}

void ImportedBible::Sort() {
  std::stable_sort(m_places.begin(), m_places.end(), [](const Place& left, const Place& right) {
    return std::tie(left.book, left.chapter) < std::tie(right.book, right.chapter);
  });
}

}  // namespace folionet

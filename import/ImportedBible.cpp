#include "ImportedBible.h"

#include <algorithm>
#include <tuple>

#include "ImportError.h"

namespace folionet {
namespace {

constexpr std::size_t kLongestText = std::size_t{64} << 20;
constexpr std::size_t kBlock = std::size_t{1} << 20;
constexpr std::size_t kUsualVerses = std::size_t{1} << 15;

}  // namespace

ImportedBible::Verse ImportedBible::VerseAt(std::size_t i) const {
  const Place& place = m_places[i];
  const std::string_view block = m_blocks[place.block];
  return {place.book, place.chapter, block.substr(place.start, place.fieldLength),
          block.substr(place.start + place.fieldLength, place.textLength)};
}

std::vector<ImportedBible::Chapter> ImportedBible::Chapters() const {
  std::vector<Chapter> chapters;
  for (std::size_t i = 0; i < m_places.size(); ++i) {
    const Place& place = m_places[i];
    const bool isSame = i > 0 && chapters.back().book == place.book && chapters.back().chapter == place.chapter;
    if (!isSame) chapters.push_back({place.book, place.chapter, i});
    chapters.back().end = i + 1;
  }
  return chapters;
}

void ImportedBible::Add(const Verse& verse) {
  const std::size_t length = verse.field.size() + verse.text.size();
  m_length += length;
  if (m_length > kLongestText) {
    throw ImportError(kOutOfMemory, "The text", {Words("Import", "It is longer than 64 MiB.")});
  }
  if (m_blocks.empty() || m_blocks.back().capacity() - m_blocks.back().size() < length) {
    m_blocks.emplace_back().reserve(std::max(kBlock, length));
  }
  if (m_places.empty()) m_places.reserve(kUsualVerses);
  std::string& block = m_blocks.back();
  m_places.push_back({static_cast<std::uint32_t>(block.size()), static_cast<std::uint32_t>(verse.text.size()),
                      static_cast<std::uint16_t>(m_blocks.size() - 1), static_cast<std::uint8_t>(verse.field.size()),
                      static_cast<std::uint8_t>(verse.book), static_cast<std::uint8_t>(verse.chapter)});
  block.append(verse.field).append(verse.text);
}

void ImportedBible::Renumber(const NewNumbers& numbers) {
  for (Place& place : m_places) place.book = numbers[place.book];
  std::erase_if(m_places, [](const Place& place) { return place.book == 0; });
}

void ImportedBible::Sort() {
  const auto isBefore = [](const Place& left, const Place& right) {
    return std::tie(left.book, left.chapter) < std::tie(right.book, right.chapter);
  };
  if (!std::is_sorted(m_places.begin(), m_places.end(), isBefore)) {
    std::stable_sort(m_places.begin(), m_places.end(), isBefore);
  }
}

}  // namespace folionet

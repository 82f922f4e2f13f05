#include "PageFile.h"

#include <memory>
#include <utility>

#include "PageNames.h"
#include "RunTimeError.h"

namespace folionet {

void PageFile::Open(const std::string& folder, const std::string& name) {
  m_folder = folder;
  if (!IsPageName(name)) {
    throw RunTimeError(kBadFileName, folder + name,
                       "Choose 8.3 file names or another address, for no page can have this name: \"" + name + "\"")
        .About(Subject::kPage);
  }
  m_name = name;
  m_size = 0;
}

void PageFile::Grow(std::size_t size) {
  if (size > kLongest) {
    throw RunTimeError(kOutOfMemory, m_folder + m_name,
                       "The page is longer than " + std::to_string(kLongest) + " bytes.")
        .About(Subject::kPage);
  }
  m_room = std::min(2 * size, kLongest);
  auto text = std::make_unique_for_overwrite<char[]>(m_room);
  std::copy_n(m_text.get(), m_size, text.get());
  m_text = std::move(text);
}

PageChange PageFile::Close() {
  return WorkAbout(Subject::kPage, [&] { return m_site->Write(m_name, Text()); });
}

std::string PageFile::Take() { return std::string(Text()); }

}  // namespace folionet

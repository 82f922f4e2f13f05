#include "ChapterOrder.h"

#include "modGlob.h"

namespace folionet {
namespace {

std::string Range(int from, int to) { return std::to_string(from) + (to > from ? " to " + std::to_string(to) : ""); }

}  // namespace

std::string Place(int book, int chapter) {
  return "Book " + std::to_string(book) + " chapter " + std::to_string(chapter);
}

void ChapterOrder::CheckStep(int book, int chapter, std::size_t line) {
  if (book < m_book || (book == m_book && chapter < m_chapter)) {
    m_faults.Add(m_path, line, Place(book, chapter) + " is out of order: it follows " + Place(m_book, m_chapter));
    return;
  }
  if (book > m_book + 1) m_faults.Add(m_path, line, "Missing: book " + Range(m_book + 1, book - 1));
  const int before = book == m_book ? m_chapter : 0;
  if (chapter > before + 1) {
    m_faults.Add(m_path, line, "Missing: book " + std::to_string(book) + " chapter " + Range(before + 1, chapter - 1));
  }
}

ChapterSeen& ChapterOrder::Begin(int book, int chapter, std::size_t line) {
  const auto [entry, isNew] = m_chapters.try_emplace({book, chapter}, ChapterSeen{0, line});
  if (isNew) {
    CheckStep(book, chapter, line);
  } else {
    m_faults.Add(m_path, line,
                 Place(book, chapter) + " is doubled: it began on line " + std::to_string(entry->second.line));
  }
  if (book > m_book || (book == m_book && chapter > m_chapter)) {
    m_book = book;
    m_chapter = chapter;
  }
  return entry->second;
}

void ChapterOrder::End() {
  if (m_book < kBooks) m_faults.Add(m_path, 0, "Missing: book " + Range(m_book + 1, kBooks));
}

}  // namespace folionet

#include "ChapterOrder.h"

#include "modGlob.h"

namespace folionet {

void ChapterOrder::AddMissingBooks(int from, int to, std::size_t line) {
  if (m_library.IsImported()) return;
  const BiblePlace place{.book = from};
  if (from == to) {
    m_library.Add("missing-book", m_path, line, {"Missing: book %1", {std::to_string(from)}}, place);
  } else {
    m_library.Add("missing-book", m_path, line, {"Missing: book %1 to %2", {std::to_string(from), std::to_string(to)}},
                  place);
  }
}

void ChapterOrder::CheckStep(int book, int chapter, std::size_t line) {
  const std::string name = std::to_string(book);
  if (book < m_book || (book == m_book && chapter < m_chapter)) {
    m_library.Add("chapter-order", m_path, line,
                  {"Book %1 chapter %2 is out of order: it follows Book %3 chapter %4",
                   {name, std::to_string(chapter), std::to_string(m_book), std::to_string(m_chapter)}},
                  {book, chapter});
    return;
  }
  if (book > m_book + 1) AddMissingBooks(m_book + 1, book - 1, line);
  if (m_library.IsImported()) return;
  const int first = (book == m_book ? m_chapter : 0) + 1;
  if (chapter == first + 1) {
    m_library.Add("missing-chapter", m_path, line, {"Missing: book %1 chapter %2", {name, std::to_string(first)}},
                  {book, first});
  } else if (chapter > first) {
    m_library.Add("missing-chapter", m_path, line,
                  {"Missing: book %1 chapter %2 to %3", {name, std::to_string(first), std::to_string(chapter - 1)}},
                  {book, first});
  }
}

ChapterSeen& ChapterOrder::Begin(int book, int chapter, std::size_t line) {
  const auto [entry, isNew] = m_chapters.try_emplace({book, chapter}, ChapterSeen{.line = line});
  if (isNew) {
    CheckStep(book, chapter, line);
  } else {
    m_library.Add("doubled-chapter", m_path, line,
                  {"Book %1 chapter %2 is doubled: it began on line %3",
                   {std::to_string(book), std::to_string(chapter), std::to_string(entry->second.line)}},
                  {book, chapter});
  }
  if (book > m_book || (book == m_book && chapter > m_chapter)) {
    m_book = book;
    m_chapter = chapter;
  }
  return entry->second;
}

void ChapterOrder::End() {
  if (m_book < kBooks) AddMissingBooks(m_book + 1, kBooks, 0);
}

}  // namespace folionet

#pragma once

#include <string>
#include <string_view>

namespace folionet {

// A text put together from the pieces of a file: runs of blanks and line ends become one blank, there are none at its
// ends, and "&", "<" and ">" become references, so that no text of a file becomes markup of a page.
class FlowingText {
 public:
  // A verse that is longer is none.
  static constexpr std::size_t kLongest = std::size_t{1} << 20;

  // False when the text has become longer than kLongest.
  bool Add(std::string_view piece);

  // Adds a text that was put together by itself, behind a blank.
  void Append(const FlowingText& other) {
    if (!m_text.empty() && !other.m_text.empty()) m_text += ' ';
    m_text += other.m_text;
    m_isBlankDue = true;
  }

  // Whatever comes next stands behind a blank.
  void Break() { m_isBlankDue = true; }

  void Clear() {
    m_text.clear();
    m_isBlankDue = false;
  }

  bool IsEmpty() const { return m_text.empty(); }
  const std::string& Text() const { return m_text; }

 private:
  std::string m_text;
  bool m_isBlankDue = false;
};

// A text of a file, such as a title, with single blanks, none at its ends, and no control characters. Nothing of it is
// written as a reference.
std::string WithSingleBlanks(std::string_view text);

}  // namespace folionet

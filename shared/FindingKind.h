#pragma once

#include <string_view>

namespace folionet {

// What a finding is, in a fixed word for the programs that read it. All of them are here, so that a word with a slip in
// it does not compile wherever it stands; docs/formats.md says what each means.
class FindingKind {
 public:
  consteval FindingKind(const char* word) : m_word(word) {
    std::string_view rest = kWords;
    for (; rest.substr(0, rest.find(' ')) != m_word; rest = rest.substr(rest.find(' ') + 1)) {
      if (rest.find(' ') == std::string_view::npos) throw "This is the word of no kind.";
    }
  }

  constexpr std::string_view Word() const { return m_word; }

  friend constexpr bool operator==(FindingKind left, FindingKind right) { return left.m_word == right.m_word; }

 private:
  static constexpr std::string_view kWords =
      "backslash bad-book bad-title bad-verse book book-names changed chapter-order charset charset-not-fit "
      "charset-not-known charsets-differ doubled-chapter doubled-stem doubled-verse empty-index empty-verse "
      "ends-before-start folder folder-for-file image-not-found import index-not-found index-takes-page kept "
      "language language-not-listed left-out-book left-out-file left-out-line letter-case linked-folder malformed "
      "missing missing-book missing-chapter missing-index missing-text missing-titles missing-verse more "
      "name-charset new no-chapters no-translation not-in-index not-in-text not-ours not-removed old-pages "
      "open-note other-case other-charset other-translation own-text-charset pages-meet pages-not-found plan "
      "removed removes-later-pages removes-pages renamed-books same shared-name sign stale text-charset "
      "titles-charset took-first undecodable unknown-mark unknown-word unreached unreadable utf-16 verse-count "
      "verse-order word-in-html xml-end";

  std::string_view m_word;
};

}  // namespace folionet

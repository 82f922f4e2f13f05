#include "BookTable.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "CodePage.h"
#include "TitleLanguages.h"

namespace folionet {

namespace {

constexpr std::array<Book, kBooks> kTable = {{
    {"GEN", "Genesis", "ge gn"},
    {"EXO", "Exodus", "exod ex"},
    {"LEV", "Leviticus", "lv"},
    {"NUM", "Numbers", "nm"},
    {"DEU", "Deuteronomy", "deut dt"},
    {"JOS", "Joshua", "josh"},
    {"JDG", "Judges", "judg jdgs"},
    {"RUT", "Ruth", "rth"},
    {"1SA", "1 Samuel", "1sam 1sm"},
    {"2SA", "2 Samuel", "2sam 2sm"},
    {"1KI", "1 Kings", "1kgs"},
    {"2KI", "2 Kings", "2kgs"},
    {"1CH", "1 Chronicles", "1chron 1chr"},
    {"2CH", "2 Chronicles", "2chron 2chr"},
    {"EZR", "Ezra", ""},
    {"NEH", "Nehemiah", ""},
    {"EST", "Esther", "esth"},
    {"JOB", "Job", ""},
    {"PSA", "Psalms", "psalm ps"},
    {"PRO", "Proverbs", "prov prv"},
    {"ECC", "Ecclesiastes", "eccl eccles qoheleth"},
    {"SNG", "Song of Solomon", "songofsongs song ssol canticles canticleofcanticles sol"},
    {"ISA", "Isaiah", ""},
    {"JER", "Jeremiah", ""},
    {"LAM", "Lamentations", "lamentationsofjeremiah"},
    {"EZK", "Ezekiel", "ezek eze"},
    {"DAN", "Daniel", ""},
    {"HOS", "Hosea", ""},
    {"JOL", "Joel", "joe"},
    {"AMO", "Amos", ""},
    {"OBA", "Obadiah", "obad"},
    {"JON", "Jonah", ""},
    {"MIC", "Micah", ""},
    {"NAM", "Nahum", "nah"},
    {"HAB", "Habakkuk", ""},
    {"ZEP", "Zephaniah", "zeph"},
    {"HAG", "Haggai", ""},
    {"ZEC", "Zechariah", "zech"},
    {"MAL", "Malachi", ""},
    {"MAT", "Matthew", "matt"},
    {"MRK", "Mark", "mar"},
    {"LUK", "Luke", ""},
    {"JHN", "John", "joh jn"},
    {"ACT", "Acts", "actsoftheapostles theacts"},
    {"ROM", "Romans", ""},
    {"1CO", "1 Corinthians", "1cor"},
    {"2CO", "2 Corinthians", "2cor"},
    {"GAL", "Galatians", ""},
    {"EPH", "Ephesians", ""},
    {"PHP", "Philippians", "phil phi"},
    {"COL", "Colossians", ""},
    {"1TH", "1 Thessalonians", "1thess 1thes"},
    {"2TH", "2 Thessalonians", "2thess 2thes"},
    {"1TI", "1 Timothy", "1tim"},
    {"2TI", "2 Timothy", "2tim"},
    {"TIT", "Titus", ""},
    {"PHM", "Philemon", "phlm phmn"},
    {"HEB", "Hebrews", ""},
    {"JAS", "James", "jam"},
    {"1PE", "1 Peter", "1pet"},
    {"2PE", "2 Peter", "2pet"},
    {"1JN", "1 John", "1jo"},
    {"2JN", "2 John", "2jo"},
    {"3JN", "3 John", "3jo"},
    {"JUD", "Jude", ""},
    {"REV", "Revelation", "revelationofjohn revelationofstjohn revelations apocalypse"},
}};

std::map<std::string, int> MakeKeys() {
  std::map<std::string, int> keys;
  for (int number = 1; number <= kBooks; ++number) {
    const Book& book = BookAt(number);
    keys.emplace(BookKey(book.code), number);
    keys.emplace(BookKey(book.title), number);
    std::string_view rest = book.synonyms;
    while (!rest.empty()) {
      const std::size_t end = rest.find(' ');
      keys.emplace(rest.substr(0, end), number);
      rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    }
  }
  // A name that two languages give to two books stays with the first.
  for (const TitleLanguage& language : TitleLanguages()) {
    for (int number = 1; number <= kBooks; ++number) {
      keys.emplace(BookKey(language.titles.at(static_cast<std::size_t>(number) - 1)), number);
    }
  }
  return keys;
}

}  // namespace

const Book& BookAt(int number) { return kTable.at(static_cast<std::size_t>(number) - 1); }

bool HasOneChapter(int number) {
  constexpr std::array<int, 5> kOneChapterBooks{31, 57, 63, 64, 65};
  return std::find(kOneChapterBooks.begin(), kOneChapterBooks.end(), number) != kOneChapterBooks.end();
}

std::string BookLabel(int number) {
  const std::string label(BookAt(number).code);
  const std::size_t letter = label.find_first_not_of("123") + 1;
  return label.substr(0, letter) + CodePage("utf-8").ToLower(label.substr(letter));
}

std::string BookKey(std::string_view name) {
  constexpr std::pair<std::string_view, char> kNumbers[] = {
      {"i ", '1'},   {"ii ", '2'},  {"iii ", '3'}, {"i. ", '1'},    {"ii. ", '2'},    {"iii. ", '3'},
      {"1st ", '1'}, {"2nd ", '2'}, {"3rd ", '3'}, {"first ", '1'}, {"second ", '2'}, {"third ", '3'}};
  static const CodePage utf8("utf-8");
  std::string lower = utf8.ToLower(name);
  std::replace(lower.begin(), lower.end(), '\t', ' ');
  for (const auto& [word, digit] : kNumbers) {
    if (lower.starts_with(word)) {
      lower.replace(0, word.size(), 1, digit);
      break;
    }
  }
  std::erase_if(lower, [](char c) { return c == ' ' || c == '.'; });
  return lower;
}

int FindBook(std::string_view name) {
  static const std::map<std::string, int> keys = MakeKeys();
  const auto found = keys.find(BookKey(name));
  return found == keys.end() ? 0 : found->second;
}

}  // namespace folionet

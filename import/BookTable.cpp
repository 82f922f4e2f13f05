#include "BookTable.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

#include "CodePage.h"
#include "Text.h"
#include "TitleLanguages.h"
#include "Utf8.h"

namespace folionet {

namespace {

constexpr std::array<Book, kBooks> kTable = {{
    {"GEN", "Genesis", "ge gn"},
    {"EXO", "Exodus", "exod ex"},
    {"LEV", "Leviticus", "lv le"},
    {"NUM", "Numbers", "nm nu"},
    {"DEU", "Deuteronomy", "deut dt de"},
    {"JOS", "Joshua", "josh jsh"},
    {"JDG", "Judges", "judg jdgs jgs jg"},
    {"RUT", "Ruth", "rth ru"},
    {"1SA", "1 Samuel", "1sam 1sm sa1 1s"},
    {"2SA", "2 Samuel", "2sam 2sm sa2 2s"},
    {"1KI", "1 Kings", "1kgs 1kin 1kg ki1"},
    {"2KI", "2 Kings", "2kgs 2kin 2kg ki2"},
    {"1CH", "1 Chronicles", "1chron 1chr ch1"},
    {"2CH", "2 Chronicles", "2chron 2chr ch2"},
    {"EZR", "Ezra", ""},
    {"NEH", "Nehemiah", "ne"},
    {"EST", "Esther", "esth es"},
    {"JOB", "Job", "jb"},
    {"PSA", "Psalms", "psalm ps pss"},
    {"PRO", "Proverbs", "prov prv pr"},
    {"ECC", "Ecclesiastes", "eccl eccles qoheleth ec qoh"},
    {"SNG", "Song of Solomon", "songofsongs song ssol canticles canticleofcanticles sol so ss sos sg cant"},
    {"ISA", "Isaiah", "is"},
    {"JER", "Jeremiah", "je"},
    {"LAM", "Lamentations", "lamentationsofjeremiah la"},
    {"EZK", "Ezekiel", "ezek eze ez"},
    {"DAN", "Daniel", "da dn"},
    {"HOS", "Hosea", "ho"},
    {"JOL", "Joel", "joe jl"},
    {"AMO", "Amos", "am"},
    {"OBA", "Obadiah", "obad ob"},
    {"JON", "Jonah", "jnh"},
    {"MIC", "Micah", "mi"},
    {"NAM", "Nahum", "nah na"},
    {"HAB", "Habakkuk", "hb"},
    {"ZEP", "Zephaniah", "zeph zp"},
    {"HAG", "Haggai", "hg"},
    {"ZEC", "Zechariah", "zech zc"},
    {"MAL", "Malachi", "ml"},
    {"MAT", "Matthew", "matt mt"},
    {"MRK", "Mark", "mar mk mr"},
    {"LUK", "Luke", "lu lk"},
    {"JHN", "John", "joh jn"},
    {"ACT", "Acts", "actsoftheapostles theacts ac"},
    {"ROM", "Romans", "ro rm"},
    {"1CO", "1 Corinthians", "1cor co1"},
    {"2CO", "2 Corinthians", "2cor co2"},
    {"GAL", "Galatians", "ga"},
    {"EPH", "Ephesians", "ep"},
    {"PHP", "Philippians", "phil phi"},
    {"COL", "Colossians", ""},
    {"1TH", "1 Thessalonians", "1thess 1thes th1"},
    {"2TH", "2 Thessalonians", "2thess 2thes th2"},
    {"1TI", "1 Timothy", "1tim 1tm ti1"},
    {"2TI", "2 Timothy", "2tim 2tm ti2"},
    {"TIT", "Titus", "ti"},
    {"PHM", "Philemon", "phlm phmn philem plm"},
    {"HEB", "Hebrews", "he"},
    {"JAS", "James", "jam jm"},
    {"1PE", "1 Peter", "1pet 1pt pe1"},
    {"2PE", "2 Peter", "2pet 2pt pe2"},
    {"1JN", "1 John", "1jo jo1"},
    {"2JN", "2 John", "2jo jo2"},
    {"3JN", "3 John", "3jo jo3"},
    {"JUD", "Jude", "jde"},
    {"REV", "Revelation", "revelationofjohn revelationofstjohn revelations apocalypse re rv"},
}};

std::map<std::string, int> MakeKeys() {
  std::map<std::string, int> keys;
  for (int number = 1; number <= kBooks; ++number) {
    const Book& book = BookAt(number);
    keys.emplace(BookKey(book.code), number);
    for (const std::string_view synonym : SplitAt(book.synonyms, " ")) keys.emplace(synonym, number);
  }
  // A name that two languages give to two books stays with the first.
  for (const TitleLanguage& language : TitleLanguages()) {
    for (int number = 1; number <= kBooks; ++number) {
      keys.emplace(BookKey(language.titles.at(static_cast<std::size_t>(number) - 1)), number);
    }
  }
  return keys;
}

// A key without its accents, whether they are characters of their own or not.
std::string WithoutAccents(const std::string& key) {
  if (IsAscii(key)) return key;
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* const apart = icu::Normalizer2::getNFDInstance(status);
  if (U_FAILURE(status)) return key;
  std::string letters;
  apart->normalize(icu::UnicodeString::fromUTF8(key), status).toUTF8String(letters);
  std::string bare;
  ForEachUtf8(letters, [&](const Piece& piece) {
    if (u_charType(piece.character) != U_NON_SPACING_MARK) bare += piece.bytes;
  });
  return bare;
}

std::map<std::string, int> MakeBareKeys(const std::map<std::string, int>& keys) {
  std::map<std::string, int> bare;
  for (const auto& [key, number] : keys) bare.emplace(WithoutAccents(key), number);
  return bare;
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
  std::erase_if(lower, [](char c) { return c == ' ' || c == '.' || c == '_' || c == '-'; });
  return lower;
}

int FindBook(std::string_view name) {
  static const std::map<std::string, int> keys = MakeKeys();
  static const std::map<std::string, int> bareKeys = MakeBareKeys(keys);
  const std::string key = BookKey(name);
  if (const auto found = keys.find(key); found != keys.end()) return found->second;
  const auto found = bareKeys.find(WithoutAccents(key));
  return found == bareKeys.end() ? 0 : found->second;
}

}  // namespace folionet

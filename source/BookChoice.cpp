#include "BookChoice.h"

#include "Numbers.h"
#include "TranslationNames.h"
#include "Utf8.h"

namespace folionet {
namespace {

struct NamedBooks {
  const char* name = nullptr;
  BookRange books;
};

constexpr NamedBooks kParts[] = {{"OT", {0, 38}},       {"NT", {39, 65}},     {"Law", {0, 4}},
                                 {"History", {5, 16}},  {"Poetry", {17, 21}}, {"Prophets", {22, 38}},
                                 {"Gospels", {39, 42}}, {"Letters", {44, 64}}};

// The place of the one text that is `wanted`, exactly or else in any letter case.
template <typename Texts>
std::optional<int> FindText(const Texts& texts, std::size_t first, const CodePage& codePage, std::string_view wanted) {
  for (const bool ignoringCase : {false, true}) {
    for (std::size_t i = first; i < texts.size(); ++i) {
      const std::string text = codePage.Decode(texts[i]);
      if (text == wanted || (ignoringCase && EqualIgnoringCase(text, wanted))) return static_cast<int>(i - first);
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<int> ChooseBook(const ModGlob& glob, const CodePage& codePage, std::string_view text) {
  const std::string_view wanted = TrimBlanks(text);
  if (wanted.empty()) return std::nullopt;
  const IntegerReading number = ReadInteger(wanted, 1, kBooks);
  if (number.error == 0) return static_cast<int>(number.value) - 1;
  if (const auto place = FindText(glob.cboStartBook, 0, codePage, wanted)) return place;
  return FindText(glob.BookCodes, 1, codePage, wanted);
}

std::optional<BookRange> ChooseBooks(const ModGlob& glob, const CodePage& codePage, std::string_view text) {
  for (const NamedBooks& part : kParts) {
    if (EqualIgnoringCase(TrimBlanks(text), part.name)) return part.books;
  }
  if (const auto book = ChooseBook(glob, codePage, text)) return BookRange{*book, *book};
  // A title may hold a "-" of its own.
  for (std::size_t dash = text.find('-'); dash != std::string_view::npos; dash = text.find('-', dash + 1)) {
    const auto first = ChooseBook(glob, codePage, text.substr(0, dash));
    const auto last = ChooseBook(glob, codePage, text.substr(dash + 1));
    if (first && last) return BookRange{*first, *last};
  }
  return std::nullopt;
}

std::optional<std::size_t> FindTranslation(const ModGlob& glob, const CodePage& codePage, std::string_view nameOrStem) {
  const std::size_t count = glob.cboBibleName.size();
  enum class Kind { kName, kStem, kStemOfDefault };  // the last as pages of the default charset have shown it
  for (const Kind kind : {Kind::kName, Kind::kStem, Kind::kStemOfDefault}) {
    for (const bool ignoringCase : {false, true}) {
      for (std::size_t i = 0; i < count; ++i) {
        const std::string text = kind == Kind::kName
                                     ? ShownName(glob, i, codePage)
                                     : ShownStem(glob.BibleFiles[i], kind == Kind::kStem ? codePage : CodePage());
        if (text == nameOrStem || (ignoringCase && EqualIgnoringCase(text, nameOrStem))) return i;
      }
    }
  }
  return std::nullopt;
}

std::vector<std::string> BookParts() {
  std::vector<std::string> names;
  for (const NamedBooks& part : kParts) names.emplace_back(part.name);
  return names;
}

}  // namespace folionet

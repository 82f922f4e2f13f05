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

// The place of the one of so many texts that is `wanted`, exactly or else in any letter case.
template <typename TextAt>
std::optional<std::size_t> FindText(std::size_t count, const TextAt& textAt, std::string_view wanted) {
  for (const bool ignoringCase : {false, true}) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::string text = textAt(i);
      if (text == wanted || (ignoringCase && EqualIgnoringCase(text, wanted))) return i;
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
  const auto title = [&](std::size_t i) { return codePage.Decode(glob.cboStartBook[i]); };
  const auto code = [&](std::size_t i) { return codePage.Decode(glob.BookCodes[i + 1]); };
  auto place = FindText(glob.cboStartBook.size(), title, wanted);
  if (!place) place = FindText(kBooks, code, wanted);
  return place ? std::optional(static_cast<int>(*place)) : std::nullopt;
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
  const auto name = [&](std::size_t i) { return ShownName(glob, i, codePage); };
  const auto stem = [&](std::size_t i) { return ShownStem(glob.BibleFiles[i], codePage); };
  // As pages of the default charset have shown it.
  const auto plainStem = [&](std::size_t i) { return ShownStem(glob.BibleFiles[i], CodePage()); };
  auto place = FindText(count, name, nameOrStem);
  if (!place) place = FindText(count, stem, nameOrStem);
  return place ? place : FindText(count, plainStem, nameOrStem);
}

std::vector<std::string> BookParts() {
  std::vector<std::string> names;
  for (const NamedBooks& part : kParts) names.emplace_back(part.name);
  return names;
}

}  // namespace folionet

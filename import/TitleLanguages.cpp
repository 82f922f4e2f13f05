#include "TitleLanguages.h"

#include <algorithm>

#include "BookTable.h"
#include "Text.h"

namespace folionet {

namespace {

// The titles of a language in canonical order.
constexpr std::string_view kBetween = ", ";
constexpr std::string_view kSpanish =
    "Génesis, Éxodo, Levítico, Números, Deuteronomio, Josué, Jueces, Rut, 1 Samuel, 2 Samuel, 1 Reyes, 2 Reyes, "
    "1 Crónicas, 2 Crónicas, Esdras, Nehemías, Ester, Job, Salmos, Proverbios, Eclesiastés, Cantares, Isaías, "
    "Jeremías, Lamentaciones, Ezequiel, Daniel, Oseas, Joel, Amós, Abdías, Jonás, Miqueas, Nahúm, Habacuc, "
    "Sofonías, Hageo, Zacarías, Malaquías, Mateo, Marcos, Lucas, Juan, Hechos, Romanos, 1 Corintios, 2 Corintios, "
    "Gálatas, Efesios, Filipenses, Colosenses, 1 Tesalonicenses, 2 Tesalonicenses, 1 Timoteo, 2 Timoteo, Tito, "
    "Filemón, Hebreos, Santiago, 1 Pedro, 2 Pedro, 1 Juan, 2 Juan, 3 Juan, Judas, Apocalipsis";

constexpr std::string_view kGerman =
    "1. Mose, 2. Mose, 3. Mose, 4. Mose, 5. Mose, Josua, Richter, Rut, 1. Samuel, 2. Samuel, 1. Könige, "
    "2. Könige, 1. Chronik, 2. Chronik, Esra, Nehemia, Ester, Hiob, Psalmen, Sprüche, Prediger, Hoheslied, "
    "Jesaja, Jeremia, Klagelieder, Hesekiel, Daniel, Hosea, Joel, Amos, Obadja, Jona, Micha, Nahum, Habakuk, "
    "Zefanja, Haggai, Sacharja, Maleachi, Matthäus, Markus, Lukas, Johannes, Apostelgeschichte, Römer, "
    "1. Korinther, 2. Korinther, Galater, Epheser, Philipper, Kolosser, 1. Thessalonicher, 2. Thessalonicher, "
    "1. Timotheus, 2. Timotheus, Titus, Philemon, Hebräer, Jakobus, 1. Petrus, 2. Petrus, 1. Johannes, "
    "2. Johannes, 3. Johannes, Judas, Offenbarung";

constexpr std::string_view kFrench =
    "Genèse, Exode, Lévitique, Nombres, Deutéronome, Josué, Juges, Ruth, 1 Samuel, 2 Samuel, 1 Rois, 2 Rois, "
    "1 Chroniques, 2 Chroniques, Esdras, Néhémie, Esther, Job, Psaumes, Proverbes, Ecclésiaste, "
    "Cantique des Cantiques, Ésaïe, Jérémie, Lamentations, Ézéchiel, Daniel, Osée, Joël, Amos, Abdias, Jonas, "
    "Michée, Nahum, Habacuc, Sophonie, Aggée, Zacharie, Malachie, Matthieu, Marc, Luc, Jean, Actes, Romains, "
    "1 Corinthiens, 2 Corinthiens, Galates, Éphésiens, Philippiens, Colossiens, 1 Thessaloniciens, "
    "2 Thessaloniciens, 1 Timothée, 2 Timothée, Tite, Philémon, Hébreux, Jacques, 1 Pierre, 2 Pierre, 1 Jean, "
    "2 Jean, 3 Jean, Jude, Apocalypse";

constexpr std::string_view kPortuguese =
    "Gênesis, Êxodo, Levítico, Números, Deuteronômio, Josué, Juízes, Rute, 1 Samuel, 2 Samuel, 1 Reis, 2 Reis, "
    "1 Crônicas, 2 Crônicas, Esdras, Neemias, Ester, Jó, Salmos, Provérbios, Eclesiastes, Cantares, Isaías, "
    "Jeremias, Lamentações, Ezequiel, Daniel, Oseias, Joel, Amós, Obadias, Jonas, Miqueias, Naum, Habacuque, "
    "Sofonias, Ageu, Zacarias, Malaquias, Mateus, Marcos, Lucas, João, Atos, Romanos, 1 Coríntios, 2 Coríntios, "
    "Gálatas, Efésios, Filipenses, Colossenses, 1 Tessalonicenses, 2 Tessalonicenses, 1 Timóteo, 2 Timóteo, Tito, "
    "Filemom, Hebreus, Tiago, 1 Pedro, 2 Pedro, 1 João, 2 João, 3 João, Judas, Apocalipse";

constexpr std::string_view kItalian =
    "Genesi, Esodo, Levitico, Numeri, Deuteronomio, Giosuè, Giudici, Rut, 1 Samuele, 2 Samuele, 1 Re, 2 Re, "
    "1 Cronache, 2 Cronache, Esdra, Neemia, Ester, Giobbe, Salmi, Proverbi, Ecclesiaste, Cantico dei Cantici, "
    "Isaia, Geremia, Lamentazioni, Ezechiele, Daniele, Osea, Gioele, Amos, Abdia, Giona, Michea, Naum, Abacuc, "
    "Sofonia, Aggeo, Zaccaria, Malachia, Matteo, Marco, Luca, Giovanni, Atti, Romani, 1 Corinzi, 2 Corinzi, "
    "Galati, Efesini, Filippesi, Colossesi, 1 Tessalonicesi, 2 Tessalonicesi, 1 Timoteo, 2 Timoteo, Tito, "
    "Filemone, Ebrei, Giacomo, 1 Pietro, 2 Pietro, 1 Giovanni, 2 Giovanni, 3 Giovanni, Giuda, Apocalisse";

constexpr std::string_view kDutch =
    "Genesis, Exodus, Leviticus, Numeri, Deuteronomium, Jozua, Richteren, Ruth, 1 Samuel, 2 Samuel, 1 Koningen, "
    "2 Koningen, 1 Kronieken, 2 Kronieken, Ezra, Nehemia, Esther, Job, Psalmen, Spreuken, Prediker, Hooglied, "
    "Jesaja, Jeremia, Klaagliederen, Ezechiël, Daniël, Hosea, Joël, Amos, Obadja, Jona, Micha, Nahum, Habakuk, "
    "Zefanja, Haggai, Zacharia, Maleachi, Mattheüs, Markus, Lukas, Johannes, Handelingen, Romeinen, 1 Korinthe, "
    "2 Korinthe, Galaten, Efeze, Filippenzen, Kolossenzen, 1 Thessalonicenzen, 2 Thessalonicenzen, 1 Timotheüs, "
    "2 Timotheüs, Titus, Filemon, Hebreeën, Jakobus, 1 Petrus, 2 Petrus, 1 Johannes, 2 Johannes, 3 Johannes, "
    "Judas, Openbaring";

std::vector<std::string_view> EnglishTitles() {
  std::vector<std::string_view> titles;
  for (int book = 1; book <= kBooks; ++book) titles.push_back(BookAt(book).title);
  return titles;
}

}  // namespace

const std::vector<TitleLanguage>& TitleLanguages() {
  static const std::vector<TitleLanguage> languages = {{"ENGLISH", "en eng", EnglishTitles()},
                                                       {"SPANISH", "es spa", SplitAt(kSpanish, kBetween)},
                                                       {"GERMAN", "de deu ger", SplitAt(kGerman, kBetween)},
                                                       {"FRENCH", "fr fra fre", SplitAt(kFrench, kBetween)},
                                                       {"PORTUGUESE", "pt por", SplitAt(kPortuguese, kBetween)},
                                                       {"ITALIAN", "it ita", SplitAt(kItalian, kBetween)},
                                                       {"DUTCH", "nl nld dut", SplitAt(kDutch, kBetween)}};
  return languages;
}

const TitleLanguage* FindLanguage(std::string_view code) {
  for (const TitleLanguage& language : TitleLanguages()) {
    const auto codes = SplitAt(language.codes, " ");
    if (std::find(codes.begin(), codes.end(), code) != codes.end()) return &language;
  }
  return nullptr;
}

const TitleLanguage& NearestLanguage(std::string_view code) {
  const TitleLanguage* const known = FindLanguage(code.substr(0, code.find_first_of("-_")));
  return known != nullptr ? *known : TitleLanguages().front();
}

std::string TitleFileText(const std::vector<std::string_view>& titles) {
  std::string text;
  for (int book = 1; book <= kBooks; ++book) {
    text += std::to_string(book) + "\t" + BookLabel(book) + "\t";
    text.append(titles.at(static_cast<std::size_t>(book) - 1)).append("\r\n");
  }
  return text;
}

}  // namespace folionet

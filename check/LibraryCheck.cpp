#include "LibraryCheck.h"

#include "CatalogueCheck.h"
#include "CharsetCheck.h"
#include "FileNames.h"
#include "IndexAndVersesCheck.h"
#include "Installation.h"
#include "TitlesCheck.h"
#include "TypedCheck.h"

namespace folionet {
namespace {

// In the order in which they run: the catalogue tells which translations there are.
constexpr void (*kListChecks[])(CheckedLibrary&) = {CheckCatalogue, CheckTypedTexts, CheckTitlesCharset, CheckTitles};

constexpr void (*kTranslationChecks[])(CheckedLibrary&, const TranslationFiles&) = {CheckTextCharset,
                                                                                    CheckIndexAndVerses};

}  // namespace

void LibraryCheck::ExamineLists() {
  for (const auto check : kListChecks) check(m_library);
}

void LibraryCheck::ExamineTranslation(const std::string& stem) {
  const TranslationFiles files{
      IndexFile(m_library.glob, m_library.codePage, stem), VerseFile(m_library.glob, m_library.codePage, stem),
      m_library.glob.InstallPath + kIndexFolder + m_library.codePage.Decode(stem) + kIndexEnding};
  for (const auto check : kTranslationChecks) check(m_library, files);
}

}  // namespace folionet

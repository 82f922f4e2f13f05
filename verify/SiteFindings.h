#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "SiteReport.h"

namespace folionet {

// Why there is no file behind a link.
enum class LinkFault {
  kMissing,
  kOtherCase,
  kBackslash,
  kUnreadable,
  kFolder,   // a folder that has no index page
  kNoFile,   // a folder, where a picture or a style sheet should be
  kCharset,  // the bytes of the link are no text of the page's charset, or another one than its writer meant
  kSign      // a sign of the file's name, such as "#", has a meaning in addresses
};

// Something that pages or style sheets name and that is not there.
struct BrokenTarget {
  std::string target;  // as browsers read it
  LinkFault fault;
  std::string otherCase;   // of kOtherCase: the name that is there
  bool isPicture = false;  // whether it is no page and no style sheet
  std::string page{};      // the first that names it: path from the folder of the site
  std::size_t line = 0;    // of that page, from 1
  std::size_t pages = 0;   // how many name it
};

struct FaultWords {
  FindingKind kind;
  const char* onOne = "";   // page: %1 is what is named, %3 the name that is there
  const char* onMany = "";  // pages: %2 is their number
};

// Words what is found in a site, and what a person does about it.
class SiteFindings {
 public:
  explicit SiteFindings(RemedyWords words) : m_words(std::move(words)) {}

  void AddBroken(const BrokenTarget& broken);
  void AddUnread(const std::string& file, std::string why);
  void AddUtf16(const std::string& page);
  void AddLinkedFolder(const std::string& link);
  void AddUnreached(const std::vector<std::string>& pages, const std::string& index);  // pages of Folionet
  void AddOwnUnreached(const std::vector<std::string>& pages, const std::string& index);
  void OfferRemoval();  // of pages that nothing leads to
  void AddEmptyIndex(const std::string& index);

  // Hands what was added on; the findings in the order in which they were added.
  void MoveTo(SiteReport& report);

 private:
  enum class Step { kPermissions, kUtf8, kCharset, kTitles, kPictures, kCorrect, kBooks, kUnreached };

  void Add(Finding finding, Step step);
  void AddByBook(const std::vector<std::string>& pages, const std::string& index, const FaultWords& words,
                 const Sentence& remedy);
  Sentence Remedy(Step step) const;
  static Step StepFor(const BrokenTarget& broken);

  RemedyWords m_words;
  std::vector<Finding> m_findings;
  std::map<Step, Sentence> m_remedies;
};

}  // namespace folionet

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "FileNames.h"
#include "OwnText.h"
#include "RunTimeError.h"
#include "StoredSettings.h"
#include "UserInterface.h"

namespace folionet {

// What tells the custom header from the custom footer.
struct CustomHtmlKind {
  std::string_view fileName;  // in the program folder
  Procedure load;
};

inline constexpr CustomHtmlKind kCustomHeader{kHeaderFile, Procedure::kLoadCustomHeader};
inline constexpr CustomHtmlKind kCustomFooter{kFooterFile, Procedure::kLoadCustomFooter};

// The custom HTML of its file, whole, as UTF-8; `unsaved` where there is no file. A failure is reported by the load,
// and then there is none.
std::optional<std::string> LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind,
                                          const std::string& unsaved, UserInterface& ui);

// The custom HTML of a file that is edited for a while, in which others may write it. A text that was not read is never
// written over unasked.
class CustomHtmlFile {
 public:
  // `programFolder` ends in the folder separator. Both must outlive this.
  CustomHtmlFile(const StoredSettings& store, const std::string& programFolder, const CustomHtmlKind& kind);

  // As LoadCustomHtml.
  std::optional<std::string> Load(const std::string& unsaved, UserInterface& ui);

  // Whether it is there, and reading it failed.
  bool IsUnread() const { return m_isUnread; }

  // Whether it holds another text than was read or written here last, or one that was not read. The letters count: a
  // change of the charset, also by another program, is none. Throws RunTimeError.
  bool HasChanged() const;

  // Writes the text and one further CR LF, in the code page; the old file stays whole until the new one is. Throws
  // RunTimeError.
  void Write(std::string_view text);

 private:
  const StoredSettings& m_store;
  const std::string& m_programFolder;
  const CustomHtmlKind& m_kind;
  std::optional<std::string> m_known;  // what the file held last; nothing for no file
  bool m_isUnread = false;
};

// A failure of that file, reported by a step.
void ReportCustomHtml(const RunTimeError& error, const CustomHtmlKind& kind, Procedure procedure, UserInterface& ui);

}  // namespace folionet

#include "CustomHtml.h"

#include "OwnCharset.h"

namespace folionet {

void ReportCustomHtml(const RunTimeError& error, const CustomHtmlKind& kind, Procedure procedure, UserInterface& ui) {
  ui.ShowErrorReport({procedure, error.About(Subject::kCustomHtml), std::string(kind.fileName) + "\r\n"});
}

std::optional<std::string> LoadCustomHtml(const OwnFolder& folder, const CustomHtmlKind& kind,
                                          const std::string& unsaved, UserInterface& ui) {
  try {
    return ReadOwnText(folder, kind.fileName).value_or(unsaved);
  } catch (const RunTimeError& error) {
    ReportCustomHtml(error, kind, kind.load, ui);
    return std::nullopt;
  }
}

CustomHtmlFile::CustomHtmlFile(const StoredSettings& store, const std::string& programFolder,
                               const CustomHtmlKind& kind)
    : m_store(store), m_programFolder(programFolder), m_kind(kind) {}

std::optional<std::string> CustomHtmlFile::Load(const std::string& unsaved, UserInterface& ui) {
  m_isUnread = true;
  try {
    m_known = ReadOwnText(StoredOwnFolder(m_store, m_programFolder), m_kind.fileName);
  } catch (const RunTimeError& error) {
    ReportCustomHtml(error, m_kind, m_kind.load, ui);
    return std::nullopt;
  }
  m_isUnread = false;
  return m_known.value_or(unsaved);
}

bool CustomHtmlFile::HasChanged() const {
  return m_isUnread || ReadOwnText(OwnFolderToSave(m_store, m_programFolder), m_kind.fileName) != m_known;
}

void CustomHtmlFile::Write(std::string_view text) {
  const OwnFolder folder = OwnFolderToSave(m_store, m_programFolder);
  SaveOwnText(folder, m_kind.fileName, std::string(text) + "\r\n");
  m_known = ReadOwnText(folder, m_kind.fileName);
  m_isUnread = false;
}

}  // namespace folionet

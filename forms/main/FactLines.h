#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <optional>
#include <string>

#include "AppState.h"
#include "CompileRequest.h"
#include "FileStamp.h"
#include "FolderScan.h"
#include "TextCharset.h"

namespace folionet {

namespace Ui {
class frmMain;
}

// The lines of the main form that tell before a compile what it will do: of the translations, of the range of books, of
// the output folder.
class FactLines : public QObject {
  Q_OBJECT

 public:
  // `gather` gives what would be compiled now.
  FactLines(AppState& state, Ui::frmMain& controls, std::function<CompileRequest()> gather, QObject* parent);

  // Looks at the chosen folder anew, beside the form.
  void LookAtFolder();

  // Shows the facts of what the form holds now.
  void Show();

  // The index page that folder and address name, when it is there; else empty. Without an address, that of the one that
  // was used last.
  std::string IndexPage() const;

  bool IsLooking() const { return m_scan.IsLooking(); }

 signals:
  void Shown();

 private:
  void ShowTranslations();
  void ShowRange();
  void AskOfFolder();
  void ShowFolder();
  const TextSample& Sample(const std::string& file);
  QString BooksText(int first, int last) const;

  AppState& m_state;
  Ui::frmMain& m_controls;
  std::function<CompileRequest()> m_gather;
  FolderScan m_scan;
  QString m_folderText;
  std::string m_sampled;  // the file of m_sample, as it was then
  std::optional<FileStamp> m_stamp;
  TextSample m_sample;
};

}  // namespace folionet

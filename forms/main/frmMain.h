#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "AppState.h"
#include "CompileRequest.h"
#include "Dialogs.h"

namespace folionet {

namespace Ui {
class frmMain;
}
class FactLines;
class FolderPickers;
class FormMemory;
class ImportButton;
class LibraryLists;
class PagePreview;
class SiteMenu;
class StatusPanels;
class StyleOptions;

// The main form. Choose a translation, style its pages, compile it. Closing it ends the program.
class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  explicit frmMain(AppState& state, QWidget* parent = nullptr);
  ~frmMain() override;

  // The start-up: reads every setting, the library and the dialogs' own, in a fixed order. A failure is reported and
  // stops it there, and the form can be used as far as it got; what was not read is kept as stored when it exits. It
  // goes on when the setting that stopped it is sound again: after a dialog, and before a compile, which is refused
  // until then. False when the program must end, which was told.
  bool LoadForm();

  // For the way to the person: a panel of the status bar, counted from 1, and the control of that name.
  void ShowPanel(int panel, std::string_view text);
  void FocusControl(std::string_view name);

  QSize sizeHint() const override;

  Dialogs& OptionDialogs() { return m_dialogs; }
  FolderPickers& Folders() { return *m_folders; }
  const FactLines& Facts() const { return *m_facts; }

 signals:
  // The program must end now. Nothing more is asked or saved.
  void Ended();

  // A file was dropped on the form.
  void TextDropped(const QString& path);

  // The form must end now, and start again with this site's file; empty for the person's own settings.
  void SiteChosen(const std::string& path);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;  // a folder is chosen, a file imported
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;  // Return presses the button that has the focus

 private:
  void ConnectOptions();
  void ConnectCommands();
  template <typename Dialog>
  void Open();
  std::vector<std::function<bool()>> StartSteps();
  bool GoOnWithStart();
  bool TakeSteps();
  bool IsStarted();
  bool TellAndGoOn();
  void updateCheck();
  void CSSCheck();
  void Compile();
  void OpenEncoding();
  void OpenLinkToMain();
  void OpenIndexPage();
  void VerifyCompiledSite();
  bool SaveDefaults();
  bool LeavesUnsaved();
  void RestoreAll();
  void Restore();
  void TakeWayOut();
  void TellToRestart();
  void End();
  void ConnectFacts();
  void ShowFacts();
  void ShowResult(std::size_t pages);
  void PreviewPage();
  void OfferAddresses();
  void OfferFolders();
  void ListFolders();
  CompileRequest Gather() const;

  AppState& m_state;
  std::unique_ptr<Ui::frmMain> m_ui;
  StatusPanels* m_panels;
  LibraryLists* m_lists;
  FolderPickers* m_folders;
  StyleOptions* m_style;
  Dialogs m_dialogs;
  FactLines* m_facts;
  FormMemory* m_memory;
  SiteMenu* m_sites;
  ImportButton* m_importing;
  std::unique_ptr<PagePreview> m_preview;
  std::string m_indexPage;                     // that folder and address name, when it is there
  std::size_t m_nextStep = 0;                  // of StartSteps; those before it are done
  bool m_hasStopped = false;                   // at a failure, since when the person may have changed what was read
  std::optional<RunTimeError> m_startFailure;  // what stopped the start-up, as it was told; none when nothing did
  bool m_exitFailed = false;                   // the settings could not be saved when the form was last to be closed
  bool m_hasEnded = false;
};

}  // namespace folionet

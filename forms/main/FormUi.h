#pragma once

#include <memory>
#include <optional>
#include <string>

#include "LibraryBoxes.h"
#include "UserInterface.h"

class QWidget;

namespace folionet {

class frmErr;
class frmMain;

// The way to the person through boxes on the screen. Boxes stand before whatever dialog is open, or before the main
// form, once there is one.
class FormUi : public UserInterface {
 public:
  FormUi();
  ~FormUi() override;

  // The form whose status bar and controls are meant; it must outlive this or be taken away with nullptr.
  void SetForm(frmMain* form) { m_form = form; }

  void ShowMessage(const Message& message) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> AskText(const InputBox& box) override;
  void ShowErrorReport(const ErrorReport& report) override;
  void SetPanel(int panel, std::string_view text) override;
  void FocusControl(std::string_view name) override;
  std::optional<Colour> ChooseColour(Colour initial) override;
  std::optional<SampleText> ChooseFont(const SampleText& initial) override;
  std::string ChooseFile(const std::string& filter, const std::string& previous) override;
  std::string ChooseFileToSave(const std::string& name, const std::string& suffix, const std::string& initial) override;
  std::string ChooseFolder(const std::string& initial, const std::string& title) override;
  void ShowPage(const std::string& path) override;

 private:
  QWidget* Owner() const;

  frmMain* m_form = nullptr;
  LibraryBoxes m_libraryBoxes;
  std::unique_ptr<frmErr> m_errorReport;  // made on first use
};

}  // namespace folionet

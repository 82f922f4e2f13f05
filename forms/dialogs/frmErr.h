#pragma once

#include <QDialog>
#include <memory>
#include <string>

namespace folionet {

namespace Ui {
class frmErr;
}

// The window of the error report, whose text can be selected and copied. Made once and shown again.
class frmErr : public QDialog {
  Q_OBJECT

 public:
  explicit frmErr(QWidget* parent = nullptr);
  ~frmErr() override;

  // Shows a report, its lines joined by CR LF, and returns when the person has closed it.
  void ShowReport(const std::string& text);

 private:
  std::unique_ptr<Ui::frmErr> m_ui;
};

}  // namespace folionet

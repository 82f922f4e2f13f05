#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace folionet {

// A multi-line box. Its text is UTF-8 with CR LF for each line break. A text that was put in and not changed since
// comes back byte for byte; in a changed one, bytes that are not UTF-8 still do.
class TextBox : public QPlainTextEdit {
  Q_OBJECT
  Q_PROPERTY(int rows READ Rows WRITE setRows)

 public:
  explicit TextBox(QWidget* parent = nullptr);

  // Does not emit textChanged.
  void SetText(std::string_view text);
  std::string Text() const;

  // The preferred height, in lines. Its setter is named as the form file's generated code calls it.
  int Rows() const { return m_rows; }
  void setRows(int rows);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  QSize SizeFor(int columns, int rows) const;

  std::string m_given;
  QString m_givenAsShown;
  int m_rows = 3;
};

}  // namespace folionet

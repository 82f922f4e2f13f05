#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace folionet {

// A multi-line box. Its text is UTF-8 with CR LF for each line break; with `oneLine`, breaks that are typed or pasted
// become blanks. A text that was put in and not changed since comes back byte for byte; in a changed one, bytes that
// are not UTF-8 still do.
class TextBox : public QPlainTextEdit {
  Q_OBJECT
  Q_PROPERTY(int rows READ Rows WRITE setRows)
  Q_PROPERTY(bool oneLine READ IsOneLine WRITE setOneLine)

 public:
  explicit TextBox(QWidget* parent = nullptr);

  // Does not emit textChanged.
  void SetText(std::string_view text);
  std::string Text() const;

  // The preferred height, in lines. Its setter is named as the form file's generated code calls it.
  int Rows() const { return m_rows; }
  void setRows(int rows);

  bool IsOneLine() const { return m_isOneLine; }
  void setOneLine(bool isOneLine) { m_isOneLine = isOneLine; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  QSize SizeFor(int columns, int rows) const;

  std::string m_given;
  QString m_givenAsShown;
  int m_rows = 3;
  bool m_isOneLine = false;
};

}  // namespace folionet

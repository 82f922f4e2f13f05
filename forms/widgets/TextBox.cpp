#include "TextBox.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextDocument>
#include <algorithm>

#include "OneLine.h"
#include "QtText.h"
#include "Utf8.h"

namespace folionet {
namespace {

// A byte that is not UTF-8 stands in the box as this lone surrogate plus the byte, which no text holds otherwise.
constexpr char16_t kFirstByteMark = 0xDC00;

bool IsByteMark(QChar c) { return c.unicode() >= kFirstByteMark + 0x80 && c.unicode() <= kFirstByteMark + 0xFF; }

QString ToBox(std::string_view text) {
  if (IsUtf8(text)) return ToQt(text);
  QString shown;
  ForEachUtf8(text, [&](const Piece& piece) {
    if (piece.character != kUndecodable) {
      shown += ToQt(piece.bytes);
    } else {
      shown += QChar(static_cast<char16_t>(kFirstByteMark + static_cast<unsigned char>(piece.bytes[0])));
    }
  });
  return shown;
}

std::string FromBox(const QString& shown) {
  std::string text;
  qsizetype done = 0;
  for (qsizetype at = 0; at < shown.size(); ++at) {
    if (shown[at].isHighSurrogate()) {
      ++at;
    } else if (IsByteMark(shown[at])) {
      text += shown.mid(done, at - done).toStdString() + static_cast<char>(shown[at].unicode() - kFirstByteMark);
      done = at + 1;
    }
  }
  return text + shown.mid(done).toStdString();
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  QSizePolicy policy = sizePolicy();
  policy.setVerticalStretch(1);
  setSizePolicy(policy);
}

void TextBox::SetText(std::string_view text) {
  const QSignalBlocker blocker(this);
  setPlainText(ToBox(text));
  m_given = text;
  m_givenAsShown = document()->toRawText();
}

std::string TextBox::Text() const {
  QString text = document()->toRawText();  // toPlainText would turn hard blanks into plain ones
  if (text == m_givenAsShown) return m_given;
  for (const QChar lineBreak : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)}) {
    text.replace(lineBreak, QLatin1String("\r\n"));
  }
  return FromBox(text);
}

void TextBox::setRows(int rows) {
  m_rows = rows;
  updateGeometry();
}

// Return does nothing in it: a dialog's own button would be pressed by a person who wants a new line.
void TextBox::keyPressEvent(QKeyEvent* event) {
  const bool breaksLine =
      event->matches(QKeySequence::InsertParagraphSeparator) || event->matches(QKeySequence::InsertLineSeparator);
  if (m_isOneLine && breaksLine) return;
  QPlainTextEdit::keyPressEvent(event);
}

void TextBox::insertFromMimeData(const QMimeData* source) {
  if (!m_isOneLine) return QPlainTextEdit::insertFromMimeData(source);
  QMimeData line;
  line.setText(InOneLine(source->text()));
  QPlainTextEdit::insertFromMimeData(&line);
}

QSize TextBox::SizeFor(int columns, int rows) const {
  constexpr int kSlack = 4;  // below this a scroll bar shows although everything fits
  const auto margin = static_cast<int>(2 * document()->documentMargin()) + 2 * frameWidth() + kSlack;
  return {columns * fontMetrics().averageCharWidth() + margin, rows * fontMetrics().lineSpacing() + margin};
}

QSize TextBox::sizeHint() const { return SizeFor(60, m_rows); }

// What is only shown is not cut through; what is typed into scrolls where it is longer than a few lines.
QSize TextBox::minimumSizeHint() const { return SizeFor(25, isReadOnly() ? m_rows : std::min(m_rows, 3)); }

}  // namespace folionet

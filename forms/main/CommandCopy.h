#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "AppState.h"
#include "CompileRequest.h"

class QWidget;

namespace folionet {

// Puts the command that does what Compile would do on the clipboard: an action of that button's menu, and a key of the
// form.
class CommandCopy : public QObject {
  Q_OBJECT

 public:
  // `gather` gives what would be compiled now; nothing when that cannot be told, which it has said.
  using Gather = std::function<std::optional<CompileRequest>()>;
  CommandCopy(AppState& state, QWidget& button, QWidget* form, Gather gather);

 private:
  void Copy();

  AppState& m_state;
  Gather m_gather;
};

}  // namespace folionet

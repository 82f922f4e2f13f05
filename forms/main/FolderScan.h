#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "BackgroundWork.h"
#include "FolderFacts.h"

namespace folionet {

// What is looked for: the facts of a folder for a compile that writes files of these names, and its index page.
struct FolderQuestion {
  std::string folder;  // ends in the separator
  WrittenFiles written;
  std::string index;

  friend bool operator==(const FolderQuestion& left, const FolderQuestion& right) = default;
};

struct FolderAnswer {
  FolderFacts facts;
  bool hasIndex = false;
};

// Looks at folders beside the form, however large they are and however slow their disk is: in a thread that nothing
// waits for.
class FolderScan : public QObject {
  Q_OBJECT

 public:
  // Begins to look; what was looked for before counts no more.
  void Start(FolderQuestion question);

  bool IsLooking() const { return m_work.IsRunning(); }

  // What was looked for last, and what was found then; nothing while it is looked for.
  const FolderQuestion& Question() const { return m_question; }
  const FolderAnswer* Found() const { return m_answer.get(); }

 signals:
  void Done();

 private:
  FolderQuestion m_question;
  std::shared_ptr<const FolderAnswer> m_answer;
  BackgroundWork m_work;
};

}  // namespace folionet

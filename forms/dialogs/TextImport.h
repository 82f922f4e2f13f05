#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "BackgroundWork.h"
#include "ImportError.h"
#include "ImportedBible.h"
#include "LibraryWriter.h"

namespace folionet {

// A Bible text on its way into the library: read, planned and written beside the form. A translation of the same stem
// is replaced: its owner asks before Write, which is the first to write anything.
class TextImport : public QObject {
  Q_OBJECT

 public:
  enum class Step { kNone, kReading, kPlanning, kWriting };

  // `pageLanguage` is that of LibraryRequest.
  explicit TextImport(std::string pageLanguage) : m_pageLanguage(std::move(pageLanguage)) {}

  // Reads the text at a path and plans it by what it tells itself; Found or Failed follows.
  void Read(const std::string& path);

  // Plans the text anew; an empty name or stem stands for its own. Planned or Failed follows.
  void Plan(const std::string& name, const std::string& stem);

  // Writes the plan; Written or Failed follows.
  void Write();

  // Ends what is done, but for writing, and forgets the text.
  void Forget();

  Step AtHand() const { return m_work.IsRunning() ? m_step : Step::kNone; }
  std::string FileAtHand() const;  // of the reading

  const ImportedBible* Bible() const { return m_bible.get(); }     // once it is found
  const LibraryPlan* CurrentPlan() const { return m_plan.get(); }  // while it is up to date

 signals:
  void Found();
  void Planned();
  void Written();
  void Failed(const ImportError& error);

 private:
  struct Shared;
  using Task = std::function<void(Shared&, const std::function<bool()>& isWanted)>;
  LibraryRequest Request(const std::string& name, const std::string& stem) const;
  void Begin(Step step, const std::shared_ptr<Shared>& shared, const Task& task);
  void End();

  Step m_step = Step::kNone;
  std::shared_ptr<Shared> m_shared;
  std::shared_ptr<const ImportedBible> m_bible;
  std::shared_ptr<const LibraryPlan> m_plan;
  std::string m_pageLanguage;
  std::string m_fallbackName;
  BackgroundWork m_work;
};

}  // namespace folionet

#include "TextImport.h"

#include <exception>
#include <mutex>
#include <optional>

#include "ImportText.h"

namespace folionet {

// What a step takes and gives, held by the form and by the thread.
struct TextImport::Shared {
  std::shared_ptr<const ImportedBible> bible;
  std::shared_ptr<const LibraryPlan> plan;
  std::optional<ImportError> failure;

  std::mutex mutex;
  std::string fileAtHand;  // under the mutex

  void MakePlan(const LibraryRequest& request) {
    plan = std::make_shared<const LibraryPlan>(PlanLibrary(*bible, request));
  }
};

LibraryRequest TextImport::Request(const std::string& name, const std::string& stem) const {
  LibraryRequest request;
  request.name = name;
  request.stem = stem;
  request.fallbackName = m_fallbackName;
  request.pageLanguage = m_pageLanguage;
  request.replace = true;
  return request;
}

void TextImport::Read(const std::string& path) {
  Forget();
  m_fallbackName = NameOfPath(path);
  Begin(Step::kReading, std::make_shared<Shared>(),
        [path, request = Request({}, {})](Shared& shared, const auto& isWanted) {
          ImportSource source;
          source.paths = {path};
          source.goOn = [&](const std::string& file) {
            const std::lock_guard lock(shared.mutex);
            shared.fileAtHand = file;
            return isWanted();
          };
          shared.bible = std::make_shared<const ImportedBible>(ReadBible(source));
          shared.MakePlan(request);
        });
}

void TextImport::Plan(const std::string& name, const std::string& stem) {
  if (!m_bible) return;
  m_plan.reset();
  auto shared = std::make_shared<Shared>();
  shared->bible = m_bible;
  Begin(Step::kPlanning, shared,
        [request = Request(name, stem)](Shared& own, const auto& /*isWanted*/) { own.MakePlan(request); });
}

void TextImport::Write() {
  if (!m_plan) return;
  auto shared = std::make_shared<Shared>();
  shared->bible = m_bible;
  shared->plan = m_plan;
  Begin(Step::kWriting, shared, [](Shared& own, const auto& /*isWanted*/) { WriteLibrary(*own.bible, *own.plan); });
}

void TextImport::Forget() {
  if (AtHand() == Step::kWriting) return;
  m_work.Drop();
  m_bible.reset();
  m_plan.reset();
}

std::string TextImport::FileAtHand() const {
  if (!m_shared) return {};
  const std::lock_guard lock(m_shared->mutex);
  return m_shared->fileAtHand;
}

void TextImport::Begin(Step step, const std::shared_ptr<Shared>& shared, const Task& task) {
  m_step = step;
  m_shared = shared;
  m_work.Start(
      [shared, task](const std::atomic<bool>& isWanted) {
        try {
          task(*shared, [&isWanted] { return isWanted.load(); });
        } catch (const ImportError& error) {
          shared->failure = error;
        } catch (const RunTimeError& error) {
          shared->failure = ImportError(error);
        } catch (const std::exception& error) {
          shared->failure = ImportError(RunTimeError(kOutOfMemory, {}, error.what()));
        }
      },
      [this] { End(); });
}

void TextImport::End() {
  if (const std::optional<ImportError>& failure = m_shared->failure) {
    emit Failed(*failure);
    return;
  }
  m_bible = m_shared->bible;
  m_plan = m_shared->plan;
  switch (m_step) {
    case Step::kReading:
      return emit Found();
    case Step::kPlanning:
      return emit Planned();
    case Step::kWriting:
      return emit Written();
    case Step::kNone:
      break;
  }
}

}  // namespace folionet

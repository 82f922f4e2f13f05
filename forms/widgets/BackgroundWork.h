#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>

namespace folionet {

// Runs the task, which throws nothing, in a thread that nothing waits for.
void RunBeside(std::function<void()> task);

// For the end of main: where a task of RunBeside still runs, the process ends here and with this status, for the task
// may use what would be taken away.
void EndWhereTasksRun(int status);

// Work beside the form, one piece at a time, in a thread that nothing waits for. What the thread and the form share
// must be held by both.
class BackgroundWork : public QObject {
  Q_OBJECT

 public:
  using Work = std::function<void(const std::atomic<bool>& isWanted)>;

  BackgroundWork();
  ~BackgroundWork() override;

  // Begins `work`; `done` is called when it has ended, by an exception too. What was begun before is told that it is
  // not wanted any more, and its end counts no more.
  void Start(Work work, std::function<void()> done);

  void Drop();
  bool IsRunning() const { return m_poll.isActive(); }

 private:
  struct Run;
  void Poll();

  std::shared_ptr<Run> m_run;
  std::function<void()> m_done;
  QTimer m_poll;
};

}  // namespace folionet

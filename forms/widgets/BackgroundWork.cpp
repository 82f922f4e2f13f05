#include "BackgroundWork.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <thread>
#include <utility>

namespace folionet {
namespace {

std::atomic<int> runningTasks{0};

}  // namespace

void RunBeside(std::function<void()> task) {
  ++runningTasks;
  std::thread([task = std::move(task)]() mutable {
    std::exchange(task, nullptr)();
    --runningTasks;
  }).detach();
}

void EndWhereTasksRun(int status) {
  if (runningTasks == 0) return;
  std::fflush(nullptr);
  std::_Exit(status);
}

struct BackgroundWork::Run {
  std::atomic<bool> isWanted{true};
  std::atomic<bool> isDone{false};
};

BackgroundWork::BackgroundWork() {
  constexpr int kInterval = 20;  // milliseconds
  m_poll.setInterval(kInterval);
  connect(&m_poll, &QTimer::timeout, this, &BackgroundWork::Poll);
}

BackgroundWork::~BackgroundWork() { Drop(); }

void BackgroundWork::Start(Work work, std::function<void()> done) {
  Drop();
  m_run = std::make_shared<Run>();
  m_done = std::move(done);
  RunBeside([run = m_run, work = std::move(work)] {
    try {
      work(run->isWanted);
    } catch (const std::exception&) {
      // Its owner finds nothing given.
    }
    run->isDone = true;
  });
  m_poll.start();
}

void BackgroundWork::Drop() {
  if (m_run) m_run->isWanted = false;
  m_run.reset();
  m_poll.stop();
}

void BackgroundWork::Poll() {
  if (!m_run->isDone) return;
  m_run.reset();
  m_poll.stop();
  // By a copy: it may begin the next piece.
  const std::function<void()> done = m_done;
  done();
}

}  // namespace folionet

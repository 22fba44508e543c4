#include "platform/slow_work.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace {

// So long nobody notices, and no event comes between the work and what follows it.
constexpr std::chrono::milliseconds At_Once(50);
constexpr int Pointer_Milliseconds = 200;
constexpr int Look_Milliseconds = 10;

struct Job {
    std::function<void()> work;
    std::mutex mutex;
    std::condition_variable ended;
    bool done = false;
    std::exception_ptr mistake;  // what went wrong in the work
};

void Run(const std::shared_ptr<Job>& job) {
    try {
        job->work();
    } catch (...) {
        job->mistake = std::current_exception();
    }
    const std::lock_guard lock(job->mutex);
    job->done = true;
    job->ended.notify_one();
}

bool Is_Done(Job& job, std::chrono::milliseconds patience) {
    std::unique_lock lock(job.mutex);
    return job.ended.wait_for(lock, patience, [&job] { return job.done; });
}

class Waiting_Pointer {
  public:
    Waiting_Pointer() = default;
    ~Waiting_Pointer() {
        if (shown_) QApplication::restoreOverrideCursor();
    }
    Waiting_Pointer(const Waiting_Pointer&) = delete;
    Waiting_Pointer& operator=(const Waiting_Pointer&) = delete;

    void Show() {
        if (!shown_) QApplication::setOverrideCursor(Qt::WaitCursor);
        shown_ = true;
    }

  private:
    bool shown_ = false;
};

}  // namespace

bool Slow_Work(std::function<void()> work, int milliseconds) {
    const auto job = std::make_shared<Job>();
    job->work = std::move(work);
    QElapsedTimer since;
    since.start();
    try {
        std::thread([job] { Run(job); }).detach();
    } catch (const std::system_error&) {
        // The system has no thread left: then the windows wait.
        job->work();
        return true;
    }
    const auto end = [&job] {
        if (job->mistake) std::rethrow_exception(job->mistake);
        return true;
    };
    if (Is_Done(*job, At_Once)) return end();

    QTimer look;
    look.start(Look_Milliseconds);
    Waiting_Pointer pointer;
    while (!Is_Done(*job, std::chrono::milliseconds(0))) {
        if (since.hasExpired(milliseconds)) return false;
        if (since.hasExpired(Pointer_Milliseconds)) pointer.Show();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    return end();
}

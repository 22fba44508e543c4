#include <QTimer>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "platform/slow_work.h"
#include "windows/screen.h"

namespace {

void Sleep(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace

TEST_F(Screen, lets_no_event_in_while_work_is_done_at_once) {
    Start();
    bool event = false;
    QTimer::singleShot(0, window_.get(), [&event] { event = true; });
    std::thread::id thread;
    EXPECT_TRUE(Slow_Work([&thread] { thread = std::this_thread::get_id(); }, 60'000));
    EXPECT_NE(thread, std::this_thread::get_id());
    EXPECT_FALSE(event);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Screen, lives_and_shows_the_pointer_that_waits_while_work_takes_long) {
    Start();
    std::atomic<bool> seen = false;
    int ticks = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, [&] {
        ++ticks;
        const QCursor* pointer = QApplication::overrideCursor();
        if (pointer != nullptr && pointer->shape() == Qt::WaitCursor) seen = true;
    });
    tick.start(5);
    // Ends when the pointer has been seen, however busy the machine is.
    EXPECT_TRUE(Slow_Work(
        [&seen] {
            while (!seen) Sleep(5);
        },
        60'000));
    EXPECT_GT(ticks, 1);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the pointer is as before";
}

TEST_F(Screen, leaves_work_behind_that_does_not_come_back) {
    Start();
    const auto over = std::make_shared<std::atomic<bool>>(false);
    EXPECT_FALSE(Slow_Work(
        [over] {
            while (!*over) Sleep(5);
        },
        300));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    *over = true;
}

TEST_F(Screen, hands_on_what_goes_wrong_in_slow_work) {
    Start();
    EXPECT_THROW((void)Slow_Work([] { throw std::runtime_error("torn"); }, 60'000), std::runtime_error);
}

#include "app/widgets/CallQueue.h"

#include "app/widgets/BackgroundJobs.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <future>
#include <thread>
#include <vector>

namespace zel {

TEST(CallQueueTest, runsTheCallsInTheirOrderAndNoneOnceItIsGone) {
    std::vector<int> run;
    {
        CallQueue queue;
        for (const int number : {1, 2, 3})
            queue.post([&run, number] { run.push_back(number); });
        EXPECT_TRUE(run.empty()) << "not before the thread's turn";
        QCoreApplication::processEvents();
        queue.post([&run] { run.push_back(4); });
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(run, (std::vector{1, 2, 3}));
}

TEST(BackgroundJobsTest, bringResultsToTheirThreadAndOneThatHangsHoldsUpNoEnd) {
    std::promise<void> answer;
    std::promise<void> ended;
    bool isLateTaken = false;
    {
        BackgroundJobs jobs{std::chrono::milliseconds{50}};
        std::thread::id thread;
        jobs.run([&] { return [&] { thread = std::this_thread::get_id(); }; });
        while (thread == std::thread::id())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_EQ(thread, std::this_thread::get_id());
        jobs.run([&, answered = answer.get_future().share()] {
            answered.wait();
            return [&, dropped = std::shared_ptr<void>(nullptr, [&](void*) { ended.set_value(); })] {
                isLateTaken = true;
            };
        });
    }
    answer.set_value();
    ended.get_future().wait();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isLateTaken);
}

} // namespace zel

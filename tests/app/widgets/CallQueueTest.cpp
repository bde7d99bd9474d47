#include "app/widgets/CallQueue.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

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

} // namespace zel

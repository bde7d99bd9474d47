#include "app/widgets/BackgroundJobs.h"

#include <thread>
#include <utility>

namespace zel {

BackgroundJobs::BackgroundJobs(std::chrono::milliseconds wait) : longestWait{wait} {
    mailbox->calls = &calls;
}

BackgroundJobs::~BackgroundJobs() {
    std::unique_lock lock(mailbox->mutex);
    // By the system's clock, whose waiting the thread sanitizer knows.
    mailbox->emptied.wait_until(lock, std::chrono::system_clock::now() + longestWait,
                                [this] { return mailbox->underWay == 0; });
    mailbox->calls = nullptr;
}

void BackgroundJobs::run(const std::function<Then()>& job) {
    {
        const std::scoped_lock lock(mailbox->mutex);
        ++mailbox->underWay;
    }
    std::thread([box = mailbox, job] {
        Then then = job();
        const std::scoped_lock lock(box->mutex);
        --box->underWay;
        if (box->calls) box->calls->post(std::move(then));
        box->emptied.notify_all();
    }).detach();
}

} // namespace zel

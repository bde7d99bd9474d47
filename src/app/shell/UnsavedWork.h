#pragma once

#include "app/widgets/PageController.h"
#include "store/DataStore.h"

#include <functional>
#include <span>
#include <utility>

namespace zel {

/// What is typed on the pages when the program is ended from outside: saved if it can be, else kept beside
/// the data file and offered at the next start.
class UnsavedWork {
public:
    struct Parts {
        const DataStore& store;
        MessagePanel& panel;
        std::span<PageController* const> pages;
        std::function<bool()> isClosing; ///< asked between questions: the program may be ended in their midst
    };
    explicit UnsavedWork(Parts needed) : parts(std::move(needed)) {}

    void keep();
    void offer();

private:
    [[nodiscard]] bool isSettled(const QJsonObject& draft);

    Parts parts;
};

} // namespace zel

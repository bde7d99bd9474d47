#pragma once

#include "store/ChangeStep.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace zel {

/// The steps of this run of the program: those that are done, and behind them those that were undone.
class ChangeHistory {
public:
    /// \return false for a step that changes nothing, which is none; any other ends what could be redone
    bool add(ChangeStep step) {
        if (step.changes.empty()) return false;
        steps.resize(done);
        steps.push_back(std::move(step));
        ++done;
        return true;
    }
    /// The step to be undone next, and the one to be redone; null: there is none. Valid until the next
    /// change.
    [[nodiscard]] const ChangeStep* undoable() const { return done > 0 ? &steps[done - 1] : nullptr; }
    [[nodiscard]] const ChangeStep* redoable() const { return done < steps.size() ? &steps[done] : nullptr; }

    // Each may be called only if there is such a step.
    // As it was made in the file: what came back may have another number there.
    void undone(ChangeStep step) { steps[--done] = std::move(step); }
    void redone(ChangeStep step) { steps[done++] = std::move(step); }
    void dropUndoable() { steps.erase(steps.begin() + static_cast<std::ptrdiff_t>(--done)); }
    void dropRedoable() { steps.erase(steps.begin() + static_cast<std::ptrdiff_t>(done)); }
    void clear() { *this = {}; }

private:
    std::vector<ChangeStep> steps;
    std::size_t done = 0;
};

} // namespace zel

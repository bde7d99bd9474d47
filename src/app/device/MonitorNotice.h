#pragma once

#include "store/DataStore.h"

namespace zel {

/// What is said of the monitor that is connected, by the ID that it holds, and what can be done next.
struct MonitorNotice {
    enum class Offer { none, download, newPatient };
    QString title, text;
    Offer offer = Offer::none;
    bool operator==(const MonitorNotice&) const = default;
};

/// An ID belongs to the patient who has exactly this one; one that only looks alike is named, no more.
[[nodiscard]] MonitorNotice monitorNotice(const QString& ID, const DataStore& store);

} // namespace zel

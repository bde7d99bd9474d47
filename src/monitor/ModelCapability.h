#pragma once

namespace zel {

/// Which rhythm or artery finding a monitor model reports.
struct ModelCapability {
    bool isAFib = false; ///< atrial fibrillation
    bool isPAD = false;  ///< peripheral arterial disease

    bool operator==(const ModelCapability&) const = default;
};

} // namespace zel

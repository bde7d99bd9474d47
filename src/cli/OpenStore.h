#pragma once

#include "cli/Command.h"
#include "store/DataStore.h"

#include <memory>

namespace zel::cli {

using OpenedStore = tl::expected<std::unique_ptr<DataStore>, Failure>;

/// The user's data file, loaded. One that cannot be read fails; it is never taken for an empty one.
[[nodiscard]] OpenedStore openStore(Surroundings& around);

/// As openStore, for a command that is going to write.
[[nodiscard]] OpenedStore openStoreForWriting(Surroundings& around);

/// Fails unless the roster has a patient with this ID.
[[nodiscard]] CommandResult checkPatient(const DataStore& store, const QString& ID);

} // namespace zel::cli

#pragma once
// The settings as texts under the names that they have in the data file.

#include "store/SettingModel.h"

#include <QString>
#include <QStringList>

#include <span>

namespace zel {

/// One setting.
struct SettingKey {
    const char* name; ///< of the child of SystemSetting
    QString (*text)(const SettingModel& setting);
    /// \return false, changing nothing, for a text that no control of the settings dialog could store
    bool (*set)(SettingModel& setting, const QString& text);
    /// What it takes, in words for the user.
    QString (*allowed)();
};

/// In the file's order.
[[nodiscard]] std::span<const SettingKey> settingKeys();
/// Null if there is none of that name.
[[nodiscard]] const SettingKey* settingKey(const QString& name);

/// The entries of the settings dialog's lists, in their order.
[[nodiscard]] QStringList dateFormats();
[[nodiscard]] QStringList timeFormats();
[[nodiscard]] QStringList metricFormats();

} // namespace zel

#pragma once
// How somebody left the window, for the next start. It is the person's at this computer, as the language is,
// and one data file's: another file's patients and folders are none of its business.

#include "store/StoreError.h"

#include <QJsonObject>
#include <QString>

namespace zel {

/// A file in the user's configuration, beside languageFile(), of a name of its own for each data file. Links
/// are followed, so that a data file has one, whatever path leads to it.
[[nodiscard]] QString viewMemoryFile(const QString& home, const QString& dataFile);

/// What is remembered, each thing by its name. Nothing in it names a patient.
class ViewMemory {
public:
    /// Reads the file. One that cannot be read counts as none, which the log tells.
    explicit ViewMemory(QString file);

    /// Undefined for what is not remembered.
    [[nodiscard]] QJsonValue value(const QString& name) const { return now[name]; }
    /// Undefined is forgotten.
    void set(const QString& name, const QJsonValue& value);
    /// Writes what has changed since it was read, into the file as it is by then: what another window or a
    /// newer version keeps in it stays.
    [[nodiscard]] StoreResult save();
    /// Removes the file, and all that it held.
    [[nodiscard]] StoreResult forget();

private:
    QString path;
    QJsonObject known; ///< as it was read or written
    QJsonObject now;
};

/// Under which the last folder is remembered. Folders are named after patients: what names one is taken out.
inline constexpr QLatin1StringView rememberedFolder{"folder"};

/// Which patient it was, for a file that is to give nobody's ID away: a digest with a salt of its own, which
/// is another one each time.
[[nodiscard]] QJsonObject maskedID(const QString& ID);
/// Whether that is the patient whose ID was masked.
[[nodiscard]] bool isMaskOf(const QJsonValue& mask, const QString& ID);

} // namespace zel

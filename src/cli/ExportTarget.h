#pragma once
// What all exports have in common: what they are told, the data file, and what is printed of each file.

#include "cli/Command.h"
#include "cli/OpenStore.h"
#include "store/AllPatients.h"
#include "store/ExportFile.h"

#include <functional>

namespace zel::cli {

/// What a command is to export, and where to.
struct ExportJob {
    QString place; ///< the folder, or where a command takes one, the file
    Replace replace = Replace::no;
    std::unique_ptr<DataStore> store;
    AllPatients patients; ///< the one of --patient, or all

    /// Where the store writes the patient's file.
    [[nodiscard]] QString pathOf(const QString& ID, const QString& extension) const;
};

enum class Whom { one, oneOrAll };
/// The first word of the request as a place that is there.
using PlaceOf = tl::expected<QString, Failure> (*)(const Request& request);

/// The folder that the command was given, if there is one of that name.
[[nodiscard]] tl::expected<QString, Failure> folderOf(const Request& request);

/// Reads what the request says, and then the data file. Fails for a patient who is not in it.
[[nodiscard]] tl::expected<ExportJob, Failure> exportJob(const Request& request, Surroundings& around,
                                                         Whom whom, PlaceOf placeOf = folderOf);

/// Tells of each file of one export whether it was written, and counts them.
class ExportTally {
public:
    /// \p program as the user called it, with its command. \p around must outlive it.
    ExportTally(QString program, Surroundings& around);

    /// Says of a file whether it was written.
    void count(const StoreResult& result, const QString& path);
    /// Says how many patients a file of each ID does not hold, as others with their ID stand before them.
    void countLeftOut(const AllPatients& patients);
    [[nodiscard]] bool isAnyWritten() const { return anyWritten; }
    /// \p flush makes sure that what was written is on the disk.
    [[nodiscard]] CommandResult finish(const std::function<StoreResult()>& flush);

private:
    QString name;
    Surroundings& told;
    bool anyWritten = false;
    bool isComplete = true;
};

} // namespace zel::cli

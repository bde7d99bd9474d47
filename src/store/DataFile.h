#pragma once

#include "store/Clock.h"
#include "store/StoreError.h"
#include "store/XmlDocument.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>

namespace zel {

class FileLock;

/// Where the store finds its files.
struct StorePaths {
    QString home;                 ///< the user's home folder; the data file lives below it
    QString applicationFolder;    ///< the executable's folder: ".target" and the data file of older versions
    QString templateFolder;       ///< holds ZEL_<target>.xml
    bool isDemonstration = false; ///< its patients are invented, which DataFile has to leave a mark of
};

/// What tells one state of a file from the next without reading it; all 0 where there is none.
struct FileStamp {
    std::uint64_t device = 0, number = 0;
    std::int64_t size = 0;
    std::chrono::nanoseconds written{}, changed{};
    bool operator==(const FileStamp&) const = default;
};

/// As the file at \p path, or the one that it leads to, is now. From any thread.
[[nodiscard]] FileStamp stampOf(const QString& path);

/// The data file on disk: the only class that knows its place and how it is created, read and replaced.
class DataFile {
public:
    /// Looks for the mark of a demonstration, once. \p clock must outlive the file; it waits for other
    /// programs that hold it.
    DataFile(StorePaths paths, Clock& clock);

    [[nodiscard]] QString getZELXMLPath() const;
    [[nodiscard]] QString getZELXMLPath_Old() const;
    /// The patients are invented: what leaves the program says so, whichever way the file was opened.
    [[nodiscard]] bool isDemonstration() const { return paths.isDemonstration; }
    /// First line of ".target" beside the program, "pad" when there is none: the model family.
    [[nodiscard]] QString getTargetString() const;
    /// Writes ".target" with "pad" if it is missing. A program in a read-only folder just keeps "pad".
    void checkAndMakeTargetFile() const;
    /// Makes sure that the data file exists: moves an older version's file into place, else copies the
    /// template. Removes what a killed program left beside it. A demonstration gets its mark first, and fails
    /// without it.
    [[nodiscard]] StoreResult checkXMLFileExist() const;
    /// Both the file and its folder, since a write replaces the file.
    [[nodiscard]] bool isWritable() const;

    /// The document, checked to be well-formed with the root ZEL.
    [[nodiscard]] tl::expected<XmlDocument, StoreError> read() const;
    enum class Edit { changed, unchanged };
    using Change = std::function<Edit(pugi::xml_node root)>;
    /// Reads the file, lets \p change edit it and, if it did, replaces it; other programs' edits wait
    /// meanwhile. Nothing is written if any step fails, or if the result could not be read again; after
    /// notFlushed it is written. \p written is called before others have their turn again, if it was.
    [[nodiscard]] StoreResult edit(
        const Change& change, const std::function<void()>& written = [] {}) const;
    /// As the file is now.
    [[nodiscard]] FileStamp stamp() const;

    /// Puts a whole document, checked before, in the file's place, in its turn among other programs; \p keep
    /// sees what is there first, and the file stays as it is if it fails.
    [[nodiscard]] StoreResult replace(const QByteArray& content,
                                      const std::function<StoreResult()>& keep) const;
    /// As replace(), where what is there cannot be read to be kept: it is given the free name \p kept, on the
    /// same disk. \return changedElsewhere if it is no longer as \p found
    [[nodiscard]] StoreResult replaceUnread(const QByteArray& content, const QString& kept,
                                            const FileStamp& found) const;

    /// Reads and checks any document of this kind, such as an older one or one to be imported.
    [[nodiscard]] static tl::expected<XmlDocument, StoreError> readDocument(const QString& path);

private:
    [[nodiscard]] QString folder() const;
    void moveOldXml() const;
    [[nodiscard]] StoreResult mark() const;
    [[nodiscard]] StoreResult create() const;
    [[nodiscard]] StoreResult copyTemplate() const;
    [[nodiscard]] StoreResult takeTurn(FileLock& lock) const;
    [[nodiscard]] StoreResult editInTurn(const Change& change, const std::function<void()>& written) const;
    StorePaths paths;
    Clock& clock;
};

} // namespace zel

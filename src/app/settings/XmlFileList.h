#pragma once

#include "app/widgets/CallQueue.h"
#include "app/widgets/FileChooser.h"
#include "store/XmlFile.h"

#include <QAbstractTableModel>

#include <memory>
#include <thread>
#include <vector>

namespace zel {

/// The XML files of a folder with what is in them, each with a box to choose it, unless it is known that it
/// cannot be imported. The names are there at once; the files are read on another thread, and each row gets
/// its counts when its file has been read.
class XmlFileList final : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit XmlFileList(ImportContext context, QObject* parent = nullptr);

    /// Lists the files of another folder, none of them chosen.
    void setFolder(const QString& folder);
    /// Lists these files, each chosen as chooseAll() would as soon as it is known what it is.
    void setFiles(const QStringList& paths);
    /// All but those whose patients are here already, and those that are too large to see who is in them:
    /// each of these can be chosen by itself. One that is not read yet is chosen when it is.
    void chooseAll(bool chosen);
    [[nodiscard]] bool isAnyForAll() const;
    [[nodiscard]] bool areAllChosen() const; ///< of those that chooseAll() chooses
    /// The full paths of the chosen files, in the list's order.
    [[nodiscard]] QStringList chosenFiles() const;
    /// Until every file stands in the list with what was found in it.
    [[nodiscard]] bool isReading() const { return reading; }

    enum Column { name, patients, readings, comments, date, state, columnTotal };
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    void chosenChanged();
    void allRead();

private:
    struct Row {
        XmlFile file;
        bool isRead = false; ///< its turn has come, whether or not the file could be read
        bool isChosen = false;
        bool isAwaited = false; ///< is chosen when it is read, if all that can be imported are
        bool isHere = false;    ///< someone in it has the ID of a patient of the data file
        /// Who is in a large file is not known before it is imported.
        [[nodiscard]] bool isForAll() const { return !file.fault && !isHere && !file.isLarge; }
    };
    /// Reads one folder's files. When it goes, it first waits for the file in its hands; what it handed over
    /// and was not taken goes with it.
    struct Reader {
        CallQueue calls;
        std::jthread thread;
    };
    void list(const QStringList& paths, bool chosen);
    void read(const QStringList& paths);
    void fileRead(int row, const XmlFile& file);
    [[nodiscard]] QString text(const Row& row, Column column) const;
    [[nodiscard]] QString dayOf(const XmlFile& file) const;
    [[nodiscard]] static QString stateOf(const Row& row);
    [[nodiscard]] static QString hint(const Row& row, const QString& text, Column column);

    ImportContext context;

    std::vector<Row> rows;
    bool reading = false;
    std::unique_ptr<Reader> reader;
};

} // namespace zel

#pragma once

#include "store/DataStore.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <vector>

namespace zel {

/// The current patient's readings by date; readings of one instant keep their stored order. Texts are made
/// when a row is shown.
class ReadingTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ReadingTableModel(const DataStore& readings, QObject* parent = nullptr);

    enum Column { date, time, sys, dia, pulse, mapOrPP, mam, mark, columnTotal };
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The readings were read anew, or are another patient's.
    void reload();
    [[nodiscard]] bool isAFib() const { return anyAFib; } ///< some reading of the list is from such a model
    [[nodiscard]] bool isPad() const { return anyPad; }
    void setMarkTitle(const QString& title);
    void refreshTexts();

private:
    [[nodiscard]] QString text(const ReadingModel& reading, Column column) const;

    const DataStore& store;
    std::vector<const ReadingModel*> rows;
    QString markTitle;
    bool anyAFib = false;
    bool anyPad = false;
};

} // namespace zel

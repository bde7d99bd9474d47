#pragma once

#include "analysis/DisplayPeriod.h"
#include "app/device/MonitorStatus.h"
#include "app/widgets/PageController.h"
#include "app/widgets/SeenWork.h"
#include "store/Clock.h"
#include "store/DataStore.h"

class QCheckBox;
class QStackedWidget;
class QTableView;

namespace zel {

class EmptyState;
class ReadingColumns;
class ReadingActions;
class ReadingFrame;
class ReadingTableModel;

/// The page that lists the current patient's readings.
class TableViewController final : public PageController {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        const MonitorStatus& status;
        DisplayPeriod& period;
        MessagePanel& panel;
        const Clock& clock;
    };
    explicit TableViewController(const Parts& needed);

    void LoadData() override;
    void UpdateUIBySetting() override;
    void setHWButtons(bool connected) override;
    [[nodiscard]] bool leave() override;
    [[nodiscard]] bool isEdited() const override;
    void checkToSaveComment() override;
    [[nodiscard]] bool readyToPrint() override;
    [[nodiscard]] QJsonArray saveQuietly() override;
    [[nodiscard]] bool takeUp(const QJsonObject& draft) override;
    /// Titles the mark column by what the readings, or else the monitor, can tell.
    void setPadTitle();
    /// Redraws, with nothing read anew.
    void refreshTable();
    [[nodiscard]] bool getShowMam() const; ///< the columns are shown
    [[nodiscard]] bool getShowPad() const;
    /// How the user has arranged the list.
    [[nodiscard]] ReadingColumns& columns() { return *arrangement; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void dressReadings();
    void showMostWanted();
    void followSorting();
    void addBoxes();
    void addActions();
    void showStored(const ReadingModel& reading);
    void reload() { listing.want(); }
    void listReadings();
    void chooseComment(const QModelIndex& index);
    void copyRows();
    [[nodiscard]] std::vector<const ReadingModel*> chosenReadings() const;

    Parts parts;
    ReadingTableModel* readingModelArray;
    QTableView* tblReadings;
    ReadingColumns* arrangement = nullptr; ///< of its columns
    EmptyState* noReadings;
    EmptyState* noneInPeriod;
    QWidget* list; ///< with what its marks mean
    QStackedWidget* listOrAdvice;
    ReadingFrame* frame;
    QCheckBox* btnShowMam;
    QCheckBox* btnShowPad;
    QString listedPatient; ///< whose readings are in the list
    ReadingActions* readingActions;
    SeenWork listing{*this, [this] { listReadings(); }};
};

} // namespace zel

#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "app/patients/OpenPatients.h"
#include "app/patients/PatientWriter.h"
#include "app/widgets/PageController.h"
#include "store/DataStore.h"

class QStackedWidget;

namespace zel {

class EmptyState;
class FirstSteps;
class PatientButtons;
class PatientEditor;
class PatientIDSender;
class PatientRoster;

/// The roster page: choosing the patient whose data the program shows, entering, changing and deleting
/// patients, and the monitor's commands.
class PatientViewController final : public PageController {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MonitorStatus& status;
        MonitorWorker& monitor;
        MessagePanel& panel;
        const Clock& clock;
        bool offersDemonstration = false; ///< while there are no patients
    };
    explicit PatientViewController(const Parts& needed);

    void LoadData() override;
    void UpdateUIBySetting() override;
    void setHWButtons(bool connected) override;
    [[nodiscard]] bool leave() override;
    /// As leave(), for the new patient that was left unsaved as well: nothing typed may be lost after this.
    [[nodiscard]] bool settle();
    [[nodiscard]] bool isEdited() const override;
    [[nodiscard]] bool readyToPrint() override;
    [[nodiscard]] QJsonArray saveQuietly() override;
    /// Shows it in the editor, to be completed and saved.
    [[nodiscard]] bool takeUp(const QJsonObject& draft) override;
    /// Makes that patient the current one, if there is one and what is typed over another may be left.
    void showPatient(const QString& ID);
    /// A monitor is connected and holds the selected patient's ID.
    [[nodiscard]] bool CanDataTransfer() const;

    void btnNewPatient();
    /// Opens a new patient with this ID filled in, unless another new one has been begun.
    void addPatient(const QString& ID);
    /// Checks the entry and writes it. \return false if not all of it was saved; the user knows why, and
    /// nothing typed is lost
    bool btnSavePatient();
    void btnDeletePatient();
    /// Writes the selected patient's ID into the monitor, after asking.
    void sendID();

signals:
    void dataTransferWanted();
    void demonstrationWanted();
    void backupsWanted();
    void updateUIWanted(); ///< the monitor's ID has been changed
    void rosterChanged(bool hasPatients);
    void
    replaced(const QString& name); ///< the patient shown is not in the file any more, another one will be

private:
    void build();
    PatientButtons* makeButtons();
    void reload();
    void open(const QString& ID);
    [[nodiscard]] QWidget* insteadOfRoster() const;
    void showRecord(const QString& ID);
    void goTo(const QString& ID);
    void enableButtons();
    void openNewPatient(const QString& ID);
    void showNew(OpenPatients::Unsaved begun);
    void tellIfGone();
    void tellCopy();
    void leaveEditor();
    void forget();
    [[nodiscard]] bool isMonitorFree() const;
    [[nodiscard]] bool canSendID() const;
    [[nodiscard]] SaveAnswer askToSave(const QString& question);
    [[nodiscard]] bool saved(const PatientModel& record);
    void dropNewPatient(const QString& next);

    Parts parts;
    DataStore& store;
    PatientWriter writer;
    PatientIDSender* sender;
    PatientRoster* roster;
    PatientEditor* editor;
    OpenPatients opened;
    EmptyState* noPatients; ///< that could be read
    FirstSteps* firstSteps;
    QStackedWidget* rosterOrAdvice;
    PatientButtons* buttons = nullptr;
    QString toldGone; ///< the ID of who was said to be gone, until there again
};

} // namespace zel

#pragma once

#include "app/device/MonitorStatus.h"
#include "store/DataStore.h"

#include <functional>

namespace zel {

class MonitorBar;
class PatientViewController;

/// Does what the monitor's bar offers: chooses the patient for a download, or opens a new one. What is typed
/// somewhere is asked about first, and nothing is done when it is not to be left.
class MonitorOffers final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        const MonitorStatus& status;
        PatientViewController& patients;
        std::function<bool()> showPatients; ///< \return whether that page is in view now
    };
    MonitorOffers(MonitorBar& bar, const Parts& parts, QObject* parent);

signals:
    void downloadWanted(); ///< the monitor's patient is chosen
    void said(const QString& text);

private:
    void download(const QString& ID);
    void addPatient(const QString& ID);

    Parts parts;
};

} // namespace zel

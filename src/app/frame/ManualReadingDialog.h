#pragma once

#include "store/Clock.h"
#include "store/ManualReading.h"
#include "store/SettingModel.h"

#include <QDialog>

#include <functional>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace zel {

class DayEdit;

/// A reading that is typed in. Esc changes nothing.
class ManualReadingDialog final : public QDialog {
    Q_OBJECT
public:
    /// \p store: what was wrong, to be shown in the dialog, which stays with what is typed; null text: it is
    /// stored; empty: it could not be, and the user has been told.
    using Store = std::function<QString(const ManualReading& typed)>;
    /// \p patient: whose reading it is, as a heading
    ManualReadingDialog(const SettingModel& setting, const Clock& timeSource, const QString& patient,
                        Store storeTyped, QWidget* parent);
    void setReading(const ManualReading& known); ///< to be changed

    void accept() override;

private:
    QLineEdit* addNumber(QFormLayout& form, const QString& name, const QString& title, const QString& unit);
    QLabel* heading(const QString& patient);
    void showTime(Instant at);
    [[nodiscard]] QTime timeIn() const;
    [[nodiscard]] ManualReading typed() const;
    [[nodiscard]] QLineEdit* fieldOf(ManualProblem problem) const;
    void refuse(QLineEdit& field, const QString& why);

    SettingModel settings;
    const Clock& clock;
    Store store;
    DayEdit* day;
    QLineEdit* time;
    QLineEdit* sys = nullptr;
    QLineEdit* dia = nullptr;
    QLineEdit* pulse = nullptr;
    QLabel* problemLine;
};

} // namespace zel

#pragma once

#include "store/Clock.h"
#include "store/ManualReading.h"
#include "store/SettingModel.h"

#include <QDialog>

#include <functional>

class QFormLayout;
class QLabel;
class QLineEdit;
class QTimeEdit;

namespace zel {

class DayEdit;

/// A reading that is typed in. Esc changes nothing.
class ManualReadingDialog final : public QDialog {
    Q_OBJECT
public:
    /// \p store: what was wrong, to be shown in the dialog, which stays with what is typed; null text: it is
    /// stored; empty: it could not be, and the user has been told.
    using Store = std::function<QString(const ManualReading& typed)>;
    ManualReadingDialog(const SettingModel& settings, const Clock& timeSource, Store storeTyped,
                        QWidget* parent);
    void setReading(const ManualReading& known); ///< to be changed

    void accept() override;

private:
    QLineEdit* addNumber(QFormLayout& form, const QString& name, const QString& title, const QString& unit);
    void showTime(Instant at);
    [[nodiscard]] ManualReading typed() const;
    [[nodiscard]] QWidget* fieldOf(ManualProblem problem) const;

    const Clock& clock;
    Store store;
    DayEdit* day;
    QTimeEdit* time;
    QLineEdit* sys = nullptr;
    QLineEdit* dia = nullptr;
    QLineEdit* pulse = nullptr;
    QLabel* problemLine;
};

} // namespace zel

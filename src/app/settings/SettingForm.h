#pragma once

#include "store/PressureLimits.h"
#include "store/SettingModel.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QVBoxLayout;
class QValidator;

namespace zel {

/// The controls that are each bound to one setting, and nothing of what is done with them.
class SettingForm final : public QWidget {
    Q_OBJECT
public:
    explicit SettingForm(QWidget* parent = nullptr);

    /// Shows \p setting in every control.
    void fill(const SettingModel& setting);
    /// \return false when the limits in their fields are refused; the user is told at these
    [[nodiscard]] bool takesLimits();
    /// Takes every control over into \p setting.
    void store(SettingModel& setting) const;
    /// Shows the language chosen, by its tag (empty: the system's), and what was wrong with the choice, if
    /// anything.
    void fillLanguage(const QString& tag, const QString& problem);
    [[nodiscard]] QString language() const;
    /// Has the first control take the keys.
    void begin();

    /// Selects the first entry that stands for \p text of the file.
    /// \return its index; -1, and the selection stays as it was, when there is none
    static int setSelectItem(QComboBox& list, const QString& text);

    /// Where what else belongs to the monitor is placed.
    [[nodiscard]] QVBoxLayout& monitorColumn() { return *monitorBox; }

private:
    void build();
    QGroupBox* makeDisplayGroup();
    QWidget* makeDisplayPPorMAP();
    void fillLanguages();
    QGroupBox* makeLimitGroup();
    QGroupBox* makeMonitorGroup();
    QGroupBox* makePhysicianGroup();
    void tellLimitProblem(std::optional<LimitProblem> problem);
    void standardCheckChanged(bool checked);
    void standardChaged(); // spelled so in the interface

    QComboBox* cboLanguage;
    QLabel* lblLanguage;
    QComboBox* dateFormate; // these three are spelled so in the interface
    QComboBox* timeFormate;
    QComboBox* metricFormate;
    QCheckBox* eraseMeasures;
    QButtonGroup* displayPPorMAP;
    QCheckBox* useWHOStandard;
    QLineEdit* sys;
    QLineEdit* dia;
    QLabel* lblLimitProblem;
    QPlainTextEdit* physisian;  // spelled so in the interface
    QValidator* numberFormater; // spelled so in the interface
    QVBoxLayout* monitorBox = nullptr;
};

} // namespace zel

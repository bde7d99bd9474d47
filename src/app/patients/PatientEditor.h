#pragma once

#include "app/patients/PatientForm.h"
#include "store/Clock.h"

#include <QScrollArea>

#include <array>

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace zel {

class PatientFieldBox;
class PatientFieldGroup;

/// The fields of one patient: personal data, risk factors, notes. Each input's object name is its field's; a
/// field whose entry does not hold says so when it is left.
class PatientEditor final : public QScrollArea {
    Q_OBJECT
public:
    explicit PatientEditor(const Clock& wallClock, QWidget* parent = nullptr);

    /// Shows a record; \p typed stands over it where it differs.
    void showPatient(const PatientForm& record);
    void showPatient(const PatientForm& record, const PatientEntry& typed);
    /// The entry and the record are the same now: it has been saved, or is not wanted any more.
    void settle() { form.setShown(entry()); }

    [[nodiscard]] PatientEntry entry() const;
    [[nodiscard]] const PatientForm& shownForm() const { return form; }
    /// What the user typed over the record that was shown, over \p other.
    [[nodiscard]] PatientEntry typedOver(const PatientForm& other) const;
    [[nodiscard]] bool isChanged() const;

    /// Says what is wrong at each field, and goes to the first of them.
    void mark(const std::vector<PatientProblem>& found);
    void beginTyping(); ///< goes to the first field

signals:
    void changed(); ///< isChanged() may answer something else now

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addPersonalData(QVBoxLayout& column);
    void addRiskFactors(QVBoxLayout& column);
    void addNotes(QVBoxLayout& column);
    PatientFieldBox* makeBirthDate();
    QWidget* makeLine(PatientField field);
    PatientFieldBox* makeBox(PatientField field, const QString& title, QWidget* input);
    void place(PatientField field, PatientFieldBox* box, QWidget* input);
    void edited(PatientField field);
    void judge(PatientField field);
    void letTypeID();
    void showUnits();
    void showAge();
    [[nodiscard]] Instant today() const;
    [[nodiscard]] QWidget& input(PatientField field) const;
    [[nodiscard]] PatientFieldBox& box(PatientField field) const;
    [[nodiscard]] bool isInBirthDate(const QWidget* widget) const;

    const Clock& clock;
    PatientForm form;
    std::array<QWidget*, patientFieldTotal> inputs{};
    std::array<PatientFieldBox*, patientFieldTotal> boxes{};
    QLabel* lblAge;
};

} // namespace zel

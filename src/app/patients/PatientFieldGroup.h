#pragma once

#include <QFrame>

#include <vector>

class QGridLayout;

namespace zel {

class PatientFieldBox;

/// A titled card of fields: in two columns where there is room, else in one.
class PatientFieldGroup final : public QFrame {
    Q_OBJECT
public:
    explicit PatientFieldGroup(const QString& title, QWidget* parent = nullptr);
    /// \p isWide: takes both columns.
    void add(PatientFieldBox* box, bool isWide = false);
    void addNote(QWidget* note); ///< words under the title

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Place {
        PatientFieldBox* box;
        bool isWide;
    };
    void arrange(int columns);

    QGridLayout* grid;
    std::vector<Place> places;
    int arranged = 0; ///< columns
};

} // namespace zel

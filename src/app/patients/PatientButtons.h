#pragma once

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace zel {

/// The buttons of the roster page, with their keys, and nothing of what is done when one is pressed.
class PatientButtons final : public QWidget {
    Q_OBJECT
public:
    explicit PatientButtons(QWidget* parent);

    /// What can be done now; a new patient can be entered always.
    struct Allowed {
        bool change = false; ///< deleting
        bool sendID = false;
        bool download = false;
    };
    void enable(const Allowed& allowed);
    /// Only while there is something to save.
    void enableSave(bool enabled);

signals:
    void newWanted();
    void deleteWanted();
    void saveWanted();
    void sendIDWanted();
    void downloadWanted();
    void focusLost(); ///< the save button had it and is greyed; the next button is none to press unawares

private:
    QPushButton* addButton(const QString& name, const QString& text, const QString& hint);
    void press(int key, const QPushButton& button);

    QHBoxLayout* row;
    QPushButton* deleteButton;
    QPushButton* saveButton;
    QPushButton* sendIDButton;
    QPushButton* downloadButton;
};

} // namespace zel

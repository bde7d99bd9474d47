#pragma once

#include <QDialog>
#include <QString>

#include <functional>

class QLabel;
class QLineEdit;

namespace zel {

/// Asks why readings are left out. Esc changes nothing.
class ExclusionDialog final : public QDialog {
    Q_OBJECT
public:
    /// \p subject: which readings, in words. \p store: whether they could be left out for that reason; if
    /// not, the user has been told, and the dialog stays with what is typed.
    ExclusionDialog(const QString& subject, std::function<bool(const QString& reason)> store,
                    QWidget* parent);
    void setReason(const QString& known); ///< to be changed

    void accept() override;

private:
    std::function<bool(const QString& reason)> leaveOut;
    QLineEdit* reason;
    QLabel* problem;
};

} // namespace zel

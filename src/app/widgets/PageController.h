#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QWidget>

namespace zel {

/// One of the main window's three pages.
class PageController : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    /// Called each time the page comes into view.
    virtual void LoadData() = 0;
    /// The settings may have changed.
    virtual void UpdateUIBySetting() = 0;
    /// A monitor was connected, changed its ID or was pulled out.
    virtual void setHWButtons(bool connected) = 0;
    /// Settles what has been typed on the page. \return false if it is not to be left
    [[nodiscard]] virtual bool leave() { return true; }
    /// A comment that is being edited is saved; before a command that others' data depend on.
    virtual void checkToSaveComment() {}
    /// Something is typed on the page and not saved.
    [[nodiscard]] virtual bool isEdited() const { return false; }
    /// Settles what has been typed and would be missing on paper or in an exported file; what is not to be
    /// saved stays on the page. \return false if nothing is to be printed or exported
    [[nodiscard]] virtual bool readyToPrint() { return true; }
    /// The program is ended from outside: saves what is being edited if it can, and tells nobody.
    /// \return what could not be saved, each with "name", whom it is about
    [[nodiscard]] virtual QJsonArray saveQuietly() { return {}; }
    /// Goes on with what saveQuietly() could not save when the program ended. \return false if it cannot now
    [[nodiscard]] virtual bool takeUp(const QJsonObject&) { return false; }

signals:
    void said(const QString& text); ///< what has been done
};

} // namespace zel

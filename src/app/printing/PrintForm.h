#pragma once

#include "report/PrintView.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace zel {

class EmptyState;
class PrintPreview;

/// The controls of the print window and what they show, and nothing of what is done with them.
class PrintForm final : public QWidget {
    Q_OBJECT
public:
    explicit PrintForm(QWidget* parent);

    /// The page keeps its size where \p room is enough for it and all around it.
    void fitPage(const QSize& room);
    /// Has Enter print, or else save the file, and the first control take the keys. Nothing is saved yet.
    void begin(bool printing);

    /// Fills the list of sections and selects that of index \p first, if there is one; chosen() stays silent.
    void offer(const QStringList& sections, int first);
    [[nodiscard]] int selectedIndex() const; ///< -1: none
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] bool needsPhysicianInfo() const;

    /// Shows page \p page of \p total, with where it stands among them. \p view must outlive its being shown;
    /// null for none.
    void showPage(const PrintView* view, std::optional<Section> section, int page, int total);
    /// Shows what is missing in the place of a page: there is none to be turned, printed or saved.
    void showMissing(const QString& what, const QString& advice);
    /// The view shown is about to go.
    void forgetPage();
    void showNote(const QString& text);
    /// There is nothing left to be cancelled.
    void showSaved(const QString& text);
    /// Empty: there is none, and so no printing.
    void showPrinter(const QString& name);

signals:
    void chosen(); ///< another section
    void physicianInfoWanted(bool need);
    void previousWanted();
    void nextWanted();
    void printerWanted(); ///< to choose another one
    void pdfWanted();
    void printWanted();
    void cancelWanted();

private:
    void build();
    void wire();
    QWidget* makeOptionRow();
    QWidget* makeButtonRow();
    void count(const QString& pages);
    void enableButtons();
    QToolButton* addPager(const QString& name, const QString& text, const QString& hint, Qt::ArrowType arrow);
    QPushButton* addButton(const QString& name, const QString& text, const QString& title);

    QComboBox* printOption;
    QCheckBox* printAddAddress;
    QLabel* pageText;
    PrintPreview* previewView;
    EmptyState* noPage;
    QStackedWidget* pageOrMissing;
    QLabel* lblNote;
    QLabel* lblPrinter;
    QToolButton* previousButton;
    QToolButton* nextButton;
    QPushButton* printerButton;
    QPushButton* savePdfButton;
    QPushButton* printButton;
    QPushButton* cancelButton;
    bool hasPage = false, hasPrinter = false;
};

} // namespace zel

#pragma once

#include <QDialog>

class QListWidget;
class QTextBrowser;

namespace zel {

/// The manual, for where no other program shows it: its chapters, and its text with the pictures.
class HelpWindow final : public QDialog {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent);

private:
    void build();
    void fitPictures();
    void listChapters();
    void goTo(int chapter);

    QListWidget* chapters;
    QTextBrowser* manual;
};

} // namespace zel

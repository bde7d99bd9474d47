#pragma once

#include "store/DataStore.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace zel {

/// What the mark of high values means, and the choice of the limits from which on they have it.
class LimitBar final : public QWidget {
    Q_OBJECT
public:
    LimitBar(DataStore& dataStore, MessagePanel& messagePanel, QWidget* parent);

private:
    QWidget* makeChoice();
    QWidget* makeOwn();
    QLineEdit* makeField(const QString& name, const QString& title);
    QLabel* makeLine(const QString& name);
    void showLimits();
    void tell(QLabel& line, const QString& words);
    void pick(int index);
    void takeOwn();
    void choose(const ViewLimits& wanted);

    DataStore& store;
    MessagePanel& panel;
    QComboBox* cboHighFrom;
    QLineEdit* ownSys;
    QLineEdit* ownDia;
    QWidget* own;
    QLabel* lblHighMark;
    QLabel* lblOwnProblem;
};

} // namespace zel

#pragma once

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;

namespace zel {

class QuietLabel;

/// A title over one field's inputs. A problem frames them, and its words stand below.
class PatientFieldBox final : public QWidget {
    Q_OBJECT
public:
    explicit PatientFieldBox(const QString& title, QWidget* parent = nullptr);
    /// \p name: what the input is called where its title cannot be seen.
    void addInput(QWidget* input, const QString& name, int stretch = 1);
    /// Something that stands beside the inputs and is no input.
    void addRemark(QWidget* remark);
    void setTitle(const QString& title);
    void setRequired();                   ///< marks it as one that has to be filled in
    void setProblem(const QString& text); ///< empty: none
    [[nodiscard]] QString problem() const { return told; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();

    QuietLabel* lblTitle;
    QHBoxLayout* rowLayout;
    QLabel* lblProblem;
    std::vector<QWidget*> inputs;
    QString told; ///< the problem
    bool isRequired = false;
};

} // namespace zel

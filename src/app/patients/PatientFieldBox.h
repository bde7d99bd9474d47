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

    void setProblem(const QString& text); ///< empty: none
    [[nodiscard]] QString problem() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QuietLabel* lblTitle;
    QWidget* row;
    QHBoxLayout* rowLayout;
    QLabel* lblProblem;
    std::vector<QWidget*> inputs;
};

} // namespace zel

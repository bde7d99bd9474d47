#pragma once

#include <QAbstractButton>

namespace zel {

/// One of the tabs at the window's top. Its images are resources named <name>.ActiveImg, .PressedImg (the
/// page that is shown, or the button held down) and .InactiveImg.
class TabButton final : public QAbstractButton {
    Q_OBJECT
public:
    TabButton(const QString& name, const QString& text, QWidget* parent);
    /// Its page is the one in view.
    void setShown(bool isShown) { setChecked(isShown); }
    [[nodiscard]] bool isShown() const { return isChecked(); }
    [[nodiscard]] QString imageName() const;
    /// With less room above and below the text.
    void setSlim(bool isSlim);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void nextCheckState() override {} ///< whoever shows the pages checks it
    void paintEvent(QPaintEvent* event) override;

private:
    bool slim = false;
};

} // namespace zel

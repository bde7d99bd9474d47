#pragma once

#include <QObject>

namespace zel {

/// Tells when the desktop's colours have changed. Qt tells only windows, and not what stands in them.
class PaletteWatch final : public QObject {
    Q_OBJECT
public:
    /// The application's, which owns it.
    static PaletteWatch& ofApplication();

signals:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit PaletteWatch(QObject* parent);
};

} // namespace zel

#pragma once

#include "app/device/MonitorStatus.h"
#include "store/DataStore.h"

#include <functional>

namespace zel {

/// What describe() says, without names of a thousand characters.
[[nodiscard]] QString shortStepName(StepName name);

/// Takes steps back and makes them again, and says how that went. Has the keys for it act on a field only
/// while there is something typed in that field to be taken back or made again, or anything is not saved.
class UndoController final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        const MonitorStatus& status;
        MessagePanel& panel;
        std::function<bool()> isEdited; ///< something is typed that is not saved
    };
    UndoController(const Parts& needed, QObject* parent);

    void undo() { retrace(true); }
    void redo() { retrace(false); }
    [[nodiscard]] bool isRetracing() const { return isAtWork; }

signals:
    void retraced(const StepName& name); ///< the file has been read anew
    void said(const QString& text);      ///< what has been done

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retrace(bool back);
    void tell(bool back, const QString& name, const StoreError& error);

    Parts parts;
    bool isAtWork = false;
};

} // namespace zel

#pragma once

#include <QAction>
#include <QList>
#include <QPointer>
#include <QStringList>

namespace zel {

/// A menu's entry for something that stands on the pages: it can be chosen exactly when its source can, is
/// checked as that is, and does what that does. Of several sources, as pages have them alike, the one in view
/// is meant. The source takes the key; the entry only says which.
class MirrorAction final : public QAction {
    Q_OBJECT
public:
    struct Look {
        QString text; ///< empty: the source's own
        QKeySequence key;
    };
    /// \p sources: buttons, which are clicked, actions, and fields, which are gone to; at least one.
    MirrorAction(const QList<QObject*>& sources, Look look, QObject* parent);

    [[nodiscard]] QStringList pages() const; ///< on which something stands for it, by their names
    void follow();                           ///< the sources may have changed

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(QObject* source);
    void act();
    [[nodiscard]] QObject* meant() const;

    QList<QPointer<QObject>> sources;
    QString ownText;
};

} // namespace zel

#pragma once

#include "store/DataStore.h"

#include <QObject>

#include <utility>

namespace zel {

/// What is asked and told once for each start, about the files that the program begins with.
class StartQuestions final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MessagePanel& panel;
        const Clock& clock;
        QString languageFile; ///< of the user's choice
    };
    explicit StartQuestions(Parts needed) : parts(std::move(needed)) {}

    /// A file that is damaged gives way to the newest copy of it, if the user says so; any other is only
    /// told.
    void offerBackup(const StoreError& damage);
    /// It is asked by itself.
    void offerPrivacy();
    void tellUnreadLanguage();

signals:
    void restored(const QString& name,
                  const QString& kept); ///< \p kept: the name that the damaged file has now
    void said(const QString& text);     ///< what has been done

private:
    void goBackTo(const Backup& copy);
    void keepOthersOut();

    Parts parts;
};

} // namespace zel

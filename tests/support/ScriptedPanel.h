#pragma once

#include "store/MessagePanel.h"

#include <QHash>
#include <QStringList>

#include <functional>

namespace zel {

/// Answers questions as it was told and keeps what was said, as "title: text".
class ScriptedPanel final : public MessagePanel {
public:
    void ShowMessage(const QString& text, const QString& title) override {
        messages += title + QStringLiteral(": ") + text;
        whenShown();
    }
    bool AskMessage(const QString&, const QString& title) override {
        questions += title;
        whenAsked();
        return answers.value(title, true);
    }

    QStringList messages;
    QStringList questions;        ///< titles only
    QHash<QString, bool> answers; ///< by title; yes when not told
    std::function<void()> whenAsked = [] {};
    std::function<void()> whenShown = [] {};
};

} // namespace zel

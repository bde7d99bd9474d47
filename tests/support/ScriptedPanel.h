#pragma once

#include "store/MessagePanel.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace zel {

/// Answers questions as it was told and keeps what was said, as "title: text".
class ScriptedPanel final : public MessagePanel {
public:
    void ShowMessage(const QString& text, const QString& title) override {
        messages += title + QStringLiteral(": ") + text;
        whenShown();
    }
    bool AskMessage(const QString& text, const QString& title) override {
        questions += title;
        asked = text;
        whenAsked();
        return answers.value(title, true);
    }
    KeepAnswer AskToKeep(const QString& text, const QString& title) override {
        questions += title;
        asked = text;
        whenAsked();
        return keepAnswer;
    }
    SaveAnswer AskToSave(const QString& text, const QString& title) override {
        const bool isWanted = AskMessage(text, title);
        if (cancelsSaving) return SaveAnswer::cancel;
        return isWanted ? SaveAnswer::save : SaveAnswer::discard;
    }
    void interject(QObject* context, const std::function<void()>& speak) override {
        if (!isTyping) return MessagePanel::interject(context, speak);
        heldBack.push_back(speak);
    }

    QStringList messages;
    QStringList questions; ///< titles only
    QString asked;         ///< the text of the last one
    KeepAnswer keepAnswer = KeepAnswer::keep;
    bool cancelsSaving = false; ///< whatever the answers say
    bool isTyping = false;      ///< what comes by itself is held back
    std::vector<std::function<void()>> heldBack;
    QHash<QString, bool> answers; ///< by title; yes when not told
    std::function<void()> whenAsked = [] {};
    std::function<void()> whenShown = [] {};
};

} // namespace zel

#pragma once

#include "store/Languages.h"

#include <QCoreApplication>
#include <QTranslator>

namespace zel {

/// The program's words, in tests that otherwise see the texts' keys, for as long as it lives. Such tests link
/// zel_resources.
class RealTexts {
public:
    explicit RealTexts(const Language& language = english()) : texts(language) {}

private:
    char name[6] = "tests";
    char* arguments[2] = {name, nullptr};
    int count = 1;
    QCoreApplication application{count, arguments};
    ProgramTexts texts;
};

/// Puts a mark before every text, so that one shows wherever it gets to. Needs an application.
class MarkedTexts final : public QTranslator {
public:
    static constexpr auto mark = u'\u00A7';

    MarkedTexts() { QCoreApplication::installTranslator(this); }
    ~MarkedTexts() override { QCoreApplication::removeTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
        return mark + QString::fromUtf8(key);
    }
};

} // namespace zel

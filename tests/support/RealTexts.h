#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

namespace zel {

/// The program's words, in tests that otherwise see the texts' keys, for as long as it lives. Such tests link
/// zel_resources.
class RealTexts {
public:
    RealTexts() {
        EXPECT_TRUE(texts.load(QStringLiteral(":/zel_en.qm")));
        QCoreApplication::installTranslator(&texts);
    }
    ~RealTexts() { QCoreApplication::removeTranslator(&texts); }
    RealTexts(const RealTexts&) = delete;
    RealTexts& operator=(const RealTexts&) = delete;

private:
    char name[6] = "tests";
    char* arguments[2] = {name, nullptr};
    int count = 1;
    QCoreApplication application{count, arguments};
    QTranslator texts;
};

} // namespace zel

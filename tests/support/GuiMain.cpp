#include "support/Environment.h"

#include <QApplication>
#include <QTranslator>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    zel::setTestEnvironment();
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QTranslator translator;
    if (!translator.load(QStringLiteral(":/zel_en.qm"))) return 1;
    QCoreApplication::installTranslator(&translator);
    return RUN_ALL_TESTS();
}

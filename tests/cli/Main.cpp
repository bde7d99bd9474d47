#include "report/TextApplication.h"
#include "support/Environment.h"

#include <QTranslator>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    zel::setTestEnvironment();
    const auto application = zel::makeTextApplication(argc, argv);
    QTranslator texts;
    if (!texts.load(QStringLiteral(":/zel_en.qm"))) return 1;
    QCoreApplication::installTranslator(&texts);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

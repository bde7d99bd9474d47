#include "SampleReport.h"
#include "chart/Drawing.h"
#include "report/ReportPainter.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <utility>

namespace zel {

namespace {

TEST(Preview, hasASizeForEitherWayThatThePaperIsTurned) {
    const SampleReport sample(5);
    constexpr int edge = 10;
    for (const auto& [section, size] :
         {std::pair{Section::table, QSize(298, 387)}, {Section::graph, QSize(525, 403)}}) {
        QImage image(size.grownBy({edge, edge, edge, edge}), QImage::Format_RGB32);
        QPainter painter(&image);
        paintPreview(painter, image.rect(), sample.view(), section, 1);
        QRect sheet;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != grayBackgroundcolor) sheet |= QRect(x, y, 1, 1);
        EXPECT_EQ(sheet, QRect(QPoint(edge, edge), size)) << facts(section).key;
    }
}

TEST(Preview, showsThePageInItsBox) {
    const SampleReport sample(5);
    QImage image(700, 500, QImage::Format_RGB32);
    QPainter painter(&image);
    paintPreview(painter, image.rect(), sample.view(), Section::table, 1);
    EXPECT_EQ(image.pixelColor(350 - 150, 250), grayBackgroundcolor);
    EXPECT_EQ(image.pixelColor(350 - 148, 250), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(350, 250 - 387 / 2 + 20), QColor(206, 219, 239)) << "the title band";
}

} // namespace

} // namespace zel

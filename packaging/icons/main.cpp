// make_icons PICTURE.svg FOLDER SIZE...: the picture in each of the sizes, as FOLDER/SIZE.png.
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool paint(QSvgRenderer& picture, int size, const QString& file) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter);
    painter.end();
    return size > 0 && image.save(file, "PNG");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QSvgRenderer picture(arguments.value(1));
    if (arguments.size() < 4 || !picture.isValid()) {
        std::fprintf(stderr, "Usage: make_icons PICTURE.svg FOLDER SIZE...\n");
        return 2;
    }
    for (const QString& size : arguments.mid(3))
        if (!paint(picture, size.toInt(), arguments[2] + u'/' + size + QStringLiteral(".png"))) return 1;
    return 0;
}

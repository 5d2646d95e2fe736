// Makes a square picture of an SVG: usage: render_svg picture.svg size picture.png
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <iostream>

int main(int argc, char* argv[]) {
    if (argc != 4) {
        std::cerr << "usage: render_svg picture.svg size picture.png\n";
        return 2;
    }
    QSvgRenderer svg{QString::fromLocal8Bit(argv[1])};
    const int size = QByteArray(argv[2]).toInt();
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    svg.render(&painter);
    painter.end();
    if (!svg.isValid() || !picture.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
        std::cerr << "render_svg: cannot make " << argv[3] << " from " << argv[1] << "\n";
        return 1;
    }
    return 0;
}

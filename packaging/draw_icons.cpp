// Draws an icon in the sizes of the icon theme: draw_icons DRAWING KIND FOLDER makes
// FOLDER/48x48/KIND/NAME.png and its like from NAME.svg.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "draw_icons DRAWING KIND FOLDER\n");
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    const QString name = QFileInfo(QString::fromLocal8Bit(argv[1])).completeBaseName();
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString folder = QStringLiteral("%1/%2x%2/%3")
                                   .arg(QString::fromLocal8Bit(argv[3]))
                                   .arg(side)
                                   .arg(QString::fromLocal8Bit(argv[2]));
        QImage picture(side, side, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        if (!drawing.isValid() || !QDir().mkpath(folder) || !picture.save(folder + "/" + name + ".png")) {
            std::fprintf(stderr, "%s: no icon of %d pixels\n", argv[1], side);
            return 1;
        }
    }
    return 0;
}

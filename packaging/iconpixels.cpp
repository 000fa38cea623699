// Writes pictures of the program's icon as a C++ source whose installWindowIcon() gives
// them to every window of the program. Their pixels are compiled in, so that the
// program's start reads no picture: that would make Qt go through its image plugins.
//
// Usage: iconpixels OUTPUT.cpp PICTURE.png...
#include <QFile>
#include <QImage>
#include <QTextStream>

#include <cstdio>

int main(int argc, char* argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: iconpixels OUTPUT.cpp PICTURE.png...\n");
        return 2;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 1;
    QTextStream out(&file);
    out << "// Made by iconpixels from the program's icon.\n"
           "#include \"windowicon.h\"\n\n#include <QGuiApplication>\n#include <QIcon>\n\n"
           "namespace {\n\n";
    QStringList sizes;
    for (int i = 2; i < argc; ++i) {
        const QImage picture =
            QImage(QString::fromLocal8Bit(argv[i])).convertToFormat(QImage::Format_ARGB32);
        if (picture.isNull()) {
            std::fprintf(stderr, "iconpixels: cannot read %s\n", argv[i]);
            return 1;
        }
        out << "const unsigned int picture" << i << "[] = {";
        for (int y = 0; y < picture.height(); ++y) {
            const auto* row = reinterpret_cast<const unsigned int*>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x)
                out << ((x % 8) ? " " : "\n    ") << "0x" << Qt::hex << row[x] << Qt::dec << ',';
        }
        out << "\n};\n\n";
        sizes << QStringLiteral("{picture%1, %2, %3}")
                     .arg(i)
                     .arg(picture.width())
                     .arg(picture.height());
    }
    out << "struct Picture {\n    const unsigned int* pixels;\n    int width;\n    int "
           "height;\n};\n\n"
           "const Picture pictures[] = {"
        << sizes.join(QStringLiteral(", ")) << "};\n\n} // namespace\n\n"
        << "void installWindowIcon()\n{\n    QIcon icon;\n"
           "    for (const Picture& picture : pictures)\n"
           "        icon.addPixmap(QPixmap::fromImage(\n"
           "            QImage(reinterpret_cast<const uchar*>(picture.pixels), picture.width,\n"
           "                   picture.height, QImage::Format_ARGB32)));\n"
           "    QGuiApplication::setWindowIcon(icon);\n}\n";
    return out.status() == QTextStream::Ok ? 0 : 1;
}

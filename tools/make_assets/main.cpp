#include "AviWriter.h"
#include "BalloonFilm.h"
#include "EmblemPictures.h"
#include "VesselPicture.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImage>

#include <cstdio>
#include <utility>

namespace {

constexpr int JpegQuality = 80;

bool writeFilm(const QDir& folder)
{
    const BalloonFilm film;
    AviWriter avi(BalloonFilm::Width, BalloonFilm::Height, BalloonFilm::FramesPerSecond);
    for (int i = 0; i < film.frameCount(); ++i) {
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        buffer.open(QIODevice::WriteOnly);
        if (!film.frame(i).save(&buffer, "JPG", JpegQuality))
            return false;
        avi.addFrame(jpeg);
    }
    return avi.save(folder.filePath("floatrixo.avi"));
}

bool report(bool done, const QDir& folder, const char* name)
{
    std::printf("%s %s\n", done ? "wrote" : "FAILED to write", qPrintable(folder.filePath(name)));
    return done;
}

// The icon for the desktop's icon theme, under icons/hicolor/ in the layout the
// theme is installed in: a drawing that scales, and bitmaps at the usual sizes.
bool writeThemeIcons(const QDir& folder)
{
    const QString name = QStringLiteral("org.floatrix.Floatrix");
    const QString scalable = QStringLiteral("icons/hicolor/scalable/apps");
    bool ok = folder.mkpath(scalable);
    const QString svg = scalable + '/' + name + ".svg";
    ok = report(ok && EmblemPictures::writeIconSvg(folder.filePath(svg)), folder, qPrintable(svg)) && ok;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString sized = QStringLiteral("icons/hicolor/%1x%1/apps").arg(size);
        const QString png = sized + '/' + name + ".png";
        const bool made = folder.mkpath(sized) && EmblemPictures::icon(size).save(folder.filePath(png), "PNG");
        ok = report(made, folder, qPrintable(png)) && ok;
    }
    return ok;
}

// The vessel pictures and the banner drawn again two and three times finer, as
// name@2x.png and name@3x.png: the program shows them on screens with that many
// device pixels to a pixel instead of enlarging the plain ones.
bool writeSharperPictures(const QDir& folder)
{
    bool ok = true;
    for (const int ratio : {2, 3}) {
        const QString suffix = QStringLiteral("@%1x.png").arg(ratio);
        const std::pair<QString, QImage> pictures[] = {
            {"pot_t1" + suffix, VesselPicture::draw(2100, false, ratio)},
            {"pot_t2" + suffix, VesselPicture::draw(2600, true, ratio)},
            {"floatrix_banner" + suffix, EmblemPictures::banner(ratio)},
        };
        for (const auto& [name, picture] : pictures)
            ok = report(picture.save(folder.filePath(name), "PNG"), folder, qPrintable(name)) && ok;
    }
    return ok;
}

} // namespace

// Draws the pictures and renders the film into the folder given as the only
// argument (the program's assets/ folder).
int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_assets <assets folder>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    // Page 8 of the introduction shows the flat vessel with its surface at 2100,
    // page 6 the round one with its surface at 2600.
    bool ok = report(VesselPicture::draw(2100, false).save(folder.filePath("pot_t1.bmp"), "BMP"), folder, "pot_t1.bmp");
    ok = report(VesselPicture::draw(2600, true).save(folder.filePath("pot_t2.bmp"), "BMP"), folder, "pot_t2.bmp") && ok;
    ok = report(EmblemPictures::icon(64).save(folder.filePath("floatrix.png"), "PNG"), folder, "floatrix.png") && ok;
    ok = report(EmblemPictures::banner().save(folder.filePath("floatrix_banner.png"), "PNG"), folder, "floatrix_banner.png") && ok;
    ok = report(writeFilm(folder), folder, "floatrixo.avi") && ok;
    ok = writeThemeIcons(folder) && ok;
    ok = writeSharperPictures(folder) && ok;
    return ok ? 0 : 1;
}

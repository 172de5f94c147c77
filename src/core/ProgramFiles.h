#pragma once

#include <QString>

// Where the program finds its own files (the liquid pages' pictures, the film, the
// icon and banner, the film player): beside its executable when it runs from the
// build tree, in ../share/floatrix (../libexec/floatrix for programs) relative to it
// when it is installed.
class ProgramFiles
{
public:
    // The folder to read the file `name` from: the executable's folder when the file
    // is there, else the installed share folder when that folder exists, else the
    // executable's folder (so that a missing file is reported where it was sought).
    static QString folder(const QString& name);

    // The full path of the file `name` in that folder.
    static QString path(const QString& name);

    // The same search for an executable kept in programFolder.
    static QString folderFrom(const QString& programFolder, const QString& name);

    // The path of the helper program `name`: beside the executable in the build
    // tree, in ../libexec/floatrix relative to it when installed; beside the
    // executable when it is in neither (so that a missing helper is reported where
    // it was sought first).
    static QString helperProgram(const QString& name);

    // The same search for an executable kept in programFolder.
    static QString helperProgramFrom(const QString& programFolder, const QString& name);

    // A picture drawn finer for screens with more device pixels to a pixel.
    struct SharperPicture
    {
        QString path;   // empty when there is none to use
        int factor = 1; // how many times finer it is drawn
    };

    // The finer drawing of the picture at path for a screen of the given pixel
    // ratio: "name@2x.png" or "name@3x.png" beside it, the least fine one that is
    // at least as fine as the screen (or the finest there is). None on a screen of
    // ratio 1.
    static SharperPicture sharperPicture(const QString& path, double pixelRatio);
};

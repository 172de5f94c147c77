#pragma once

#include "model/LiquidMolecules.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

class ImageCanvas;
struct FluidParameters;

// A liquid page of the introduction (unit 2, pages 6 and 8): the vessel picture as
// the background, the partition in the vessel's middle until a click removes it,
// the liquid's surface on page 6, and the molecules that a liquid run moves.
class LiquidPage
{
    Q_DECLARE_TR_FUNCTIONS(LiquidPage)

public:
    // The page's background pictures, looked up in the program's folder.
    static constexpr const char* Page6Picture = "pot_t2.bmp";
    static constexpr const char* Page8Picture = "pot_t1.bmp";

    // A page that draws on the introduction's picture with the given fluid
    // settings; both outlive it.
    LiquidPage(ImageCanvas& canvas, const FluidParameters& fluid);

    // Sets the page up (surface level, molecules, background picture, partition)
    // and draws it. A missing or unreadable picture leaves the page without a
    // background and says in the status line what is wrong.
    void PrepareLiquidPage(int16_t page);

    // The folder the pictures are read from; empty (the default) for the
    // program's own folder.
    void setPictureFolder(const QString& folder);

    // Draws the page again: background, partition, surface and molecules.
    void DrawLiquidPage();

    // One step of a liquid run: the molecules move and the page is drawn again.
    void Tick();

    // Takes the partition out; the picture shows it at the next redraw.
    void RemovePartition();

    // Releases the molecules when the book leaves the page.
    void Leave();

    // The page shown, the y of the liquid's surface, and whether the partition is in.
    int16_t Page() const { return m_page; }
    int16_t LiquidLevel() const { return m_LiquidLevel; }
    bool PartitionVisible() const { return m_PartitionVisible; }
    const LiquidMolecules& Molecules() const { return m_molecules; }

private:
    void loadPicture(const QString& name);

    ImageCanvas& m_canvas;
    const FluidParameters& m_fluid;
    QString m_pictureFolder;
    LiquidMolecules m_molecules;
    int16_t m_page = 0;
    int16_t m_LiquidLevel = 0;
    bool m_PartitionVisible = false;
};

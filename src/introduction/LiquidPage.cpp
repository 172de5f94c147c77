#include "LiquidPage.h"

#include "PictureFile.h"

#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "core/Numeric.h"
#include "core/ProgramFiles.h"
#include "core/Twips.h"
#include "model/FluidParameters.h"
#include "widgets/StatusLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>

namespace {

constexpr int32_t White = Rgb::RGB(255, 255, 255);

} // namespace

LiquidPage::LiquidPage(ImageCanvas& canvas, const FluidParameters& fluid) : m_canvas(canvas), m_fluid(fluid)
{
}

void LiquidPage::PrepareLiquidPage(int16_t page)
{
    m_page = page;
    m_LiquidLevel = page == FluidParameters::FirstLiquidPage ? 2600 : 2100;

    const FluidParameters& fluid = m_fluid;
    LiquidMolecules::Layout layout;
    layout.rows = fluid.FluidRows;
    layout.columns = fluid.FluidColumns;
    layout.liquidLevel = m_LiquidLevel;
    layout.radius = page == FluidParameters::FirstLiquidPage ? 150 : 50;
    layout.groupColor[0] = Numeric::toInt32(fluid.FluidGroupColor[1]);
    layout.groupColor[1] = Numeric::toInt32(fluid.FluidGroupColor[2]);
    m_molecules.Lay(m_canvas, layout);

    loadPicture(QString::fromLatin1(page == FluidParameters::FirstLiquidPage ? Page6Picture : Page8Picture));
    m_PartitionVisible = true;
    DrawLiquidPage();
}

void LiquidPage::setPictureFolder(const QString& folder)
{
    m_pictureFolder = folder;
}

void LiquidPage::loadPicture(const QString& name)
{
    const QString folder = m_pictureFolder.isEmpty() ? ProgramFiles::folder(name) : m_pictureFolder;
    const PictureFile file(QDir(folder).filePath(name));
    if (file.status() != PictureFile::Status::Read) {
        // A damaged picture is left out whole rather than shown in part.
        m_canvas.setPicture(QImage());
        SetStatusLine(tr("The picture %1 %2: the vessel is shown without it").arg(name, file.problem()));
        return;
    }
    // The picture is drawn in device pixels: on a high-density screen it is shown
    // as many times larger, to keep its place under the picture's twips.
    const double ratio = m_canvas.DeviceWidth() * double(Twips::PerPixel) / m_canvas.ScaleWidth();
    m_canvas.setPicture(file.atPixelRatio(ratio));
}

void LiquidPage::DrawLiquidPage()
{
    m_canvas.Cls();
    if (m_PartitionVisible)
        m_canvas.Line(LiquidMolecules::VesselMiddle, m_LiquidLevel, LiquidMolecules::VesselMiddle,
            LiquidMolecules::VesselBottom, White);
    if (m_page == FluidParameters::FirstLiquidPage && m_fluid.LiquidSurface3D)
        m_canvas.Line(LiquidMolecules::VesselLeft, m_LiquidLevel, LiquidMolecules::VesselRight, m_LiquidLevel, White);
    m_molecules.Draw();
}

void LiquidPage::Tick()
{
    m_molecules.Step();
    DrawLiquidPage();
}

void LiquidPage::RemovePartition()
{
    m_PartitionVisible = false;
    m_molecules.RemovePartition();
}

void LiquidPage::Leave()
{
    m_molecules.Clear();
    m_page = 0;
}

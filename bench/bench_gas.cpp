#include "canvas/ImageCanvas.h"
#include "core/ScopedRandomSequence.h"
#include "model/Gas.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

// A surface of the microscopic view's size whose device operations do nothing, so
// that only the physics and the canvas's bookkeeping are measured.
class NullCanvas : public Canvas
{
public:
    NullCanvas()
    {
        setDeviceSize(127, 119);
        setScale(0, 0, 1905, 1785);
    }

protected:
    void clearDevice() override {}
    void segment(int32_t, int32_t, int32_t, int32_t, int32_t) override {}
    void box(int32_t, int32_t, int32_t, int32_t, int32_t) override {}
    void disc(double, double, double, int32_t) override {}
    void dot(int32_t, int32_t, int32_t) override {}
    void polygon(const std::vector<DevicePoint>&, int32_t) override {}
};

// A top-wall sample set up as the microscopic view sets its samples up.
void setUpLikeTheView(Gas& gas, Canvas& canvas, int16_t side)
{
    canvas.setDrawMode(Canvas::XorPen);
    gas.setCanvas(&canvas);
    gas.setWall(2);
    gas.setSolidLiquidTemperature(100);
    gas.setLiquidGasTemperature(200);
    gas.setEquilibriumTemperature(165);
    gas.setWallCoord(canvas.ScaleHeight() / 3);
    gas.setMoleculesMass(10);
    gas.setRadius(70);
    gas.setTemperature(293);
    gas.setTimeStep(0.1f);
    gas.setColumnsOfMolecules(side);
    gas.setRowsOfMolecules(side);
    gas.InitialiseParticles();
    gas.DrawGas();
}

template <typename Surface>
void ShowNextSnapshot(benchmark::State& state)
{
    ScopedRandomSequence sequence;
    Surface canvas;
    Gas gas;
    setUpLikeTheView(gas, canvas, int16_t(state.range(0)));
    float left = 0, right = 0, top = 0, bottom = 0;
    for (auto _ : state) {
        gas.ShowNextSnapshot(left, right, top, bottom);
        benchmark::DoNotOptimize(top);
    }
    state.SetLabel(std::to_string(gas.NoOfMolecules()) + " molecules");
}

class ViewSizedImageCanvas : public ImageCanvas
{
public:
    ViewSizedImageCanvas() : ImageCanvas(127, 119) {}
};

} // namespace

BENCHMARK_TEMPLATE(ShowNextSnapshot, ViewSizedImageCanvas)->Arg(3)->Arg(5);
BENCHMARK_TEMPLATE(ShowNextSnapshot, NullCanvas)->Arg(3)->Arg(5);

BENCHMARK_MAIN();

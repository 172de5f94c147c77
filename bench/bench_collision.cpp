#include "canvas/ImageCanvas.h"
#include "introduction/CollisionGraphs.h"
#include "introduction/CollisionScene.h"
#include "model/CollisionState.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int16_t SideView = 2;

// The side-view experiment with its defaults on a picture the size of the
// introduction's, set up as the page set-up leaves it.
struct SideViewExperiment
{
    ImageCanvas canvas{305, 329};
    CollisionSetup setup;
    CollisionState state{setup};
    CollisionScene scene;
    CollisionGraphs graphs;

    explicit SideViewExperiment(int16_t forceModel)
    {
        canvas.setDrawMode(Canvas::XorPen);
        canvas.setFillStyle(Canvas::Solid);
        setup.resetDefaults(canvas.BackColor());
        setup.useDefaultColours();
        setup.ForceModel = forceModel;
        scene.InitialiseGround(canvas);
        graphs.BuildGraphList(canvas, setup, SideView);
        state.ComputeCollision(SideView);
        scene.ComputeViewport(canvas, setup, state, SideView);
        scene.DrawCollisionScene(canvas, setup, state, SideView);
    }

    void start()
    {
        state.SimulationTime = 0;
        for (int16_t g = 1; g <= graphs.GraphCount; ++g)
            graphs.GraphRange(setup, state, g, graphs.GraphQuantity[g], 0, 2 * state.ContactStart);
        graphs.StartGraphClocks(state);
        graphs.DrawGraphFrames(canvas, graphs.GraphCount);
    }

    // One timer tick of a run: erase, move, redraw, extend the graphs.
    void tick()
    {
        scene.DrawBodies(canvas, setup, state, SideView);
        state.SimulationTime += state.TimeStep;
        for (int16_t i = 1; i <= 2; ++i)
            scene.BodyScreenX[i] = scene.ScreenX(state.BodyState(1, 1, i, state.SimulationTime));
        scene.DrawBodies(canvas, setup, state, SideView);
        graphs.DrawGraphStep(canvas, setup, state);
    }
};

void BM_ComputeCollision(benchmark::State& run)
{
    CollisionSetup setup;
    setup.ForceModel = CollisionSetup::ContinuousForce;
    CollisionState state(setup);
    for (auto _ : run)
        benchmark::DoNotOptimize(state.ComputeCollision(SideView));
}
BENCHMARK(BM_ComputeCollision);

void BM_RunOf100StepsWithDrawing(benchmark::State& run)
{
    SideViewExperiment experiment(static_cast<int16_t>(run.range(0)));
    for (auto _ : run) {
        experiment.scene.DrawCollisionScene(experiment.canvas, experiment.setup, experiment.state, SideView);
        experiment.start();
        for (int step = 0; step < 100; ++step)
            experiment.tick();
    }
}
BENCHMARK(BM_RunOf100StepsWithDrawing)->Arg(0)->Arg(2)->Unit(benchmark::kMillisecond);

void BM_RedrawGraphs(benchmark::State& run)
{
    SideViewExperiment experiment(static_cast<int16_t>(run.range(0)));
    experiment.start();
    for (auto _ : run)
        experiment.graphs.RedrawGraphs(experiment.canvas, experiment.setup, experiment.state);
}
BENCHMARK(BM_RedrawGraphs)->Arg(0)->Arg(2)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
